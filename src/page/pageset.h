#pragma once

#include <map>
#include <optional>
#include <vector>

#include <QString>

#include "ddc_protocol/command.h"
#include "page/pageid.h"

class CommandQueue;
class Page;
class QWidget;
class SettingsPage;

/// The pages that entries lead to, and what the window does with all of them. Owns none.
class PageSet
{
public:
    void add(PageId id, Page *page) { m_pages[id] = page; }

    /// Null for entries without a page.
    Page *page(PageId id) const;
    /// The page of monitor settings that an entry leads to; null for those that are none.
    SettingsPage *settings(PageId id) const;
    /// The page that a widget shows; null for any other.
    Page *shownBy(const QWidget *widget) const;
    std::vector<Page *> all() const;

    /// Fills every page from the snapshot. Nothing is sent, and nothing that was on its way in the queue is lost.
    void fill(CommandQueue &queue) const;

    void updateControlText() const;

    /// Asks each until one wants the program to stay; false as well while a question stands already.
    bool mayLeave();

    /// A value as the page names it that offers it; empty where none does.
    QString optionText(Command command, int value) const;

    /// Where a value lies in the range of the slider that sets it, 0 to 1; nothing where no page has one.
    std::optional<double> levelOf(Command command, int value) const;

private:
    std::map<PageId, Page *> m_pages;
    bool m_asksToLeave = false;
};
