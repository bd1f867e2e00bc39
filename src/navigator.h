#pragma once

#include <array>

#include <QObject>

#include "ddc_protocol/command.h"
#include "navigation.h"

class EmptyPage;
class LeftBar;
class Page;
class PageSet;
class QStackedWidget;
class TopTabFrame;

/// The way through the window: a tab chooses a family, an entry of its left bar the page. Makes the tabs, the bars and
/// the stack of pages in the window, which places them.
class Navigator : public QObject
{
    Q_OBJECT
public:
    Navigator(const PageSet &pages, QWidget *window);

    TopTabFrame *tabs() const { return m_tabs; }
    QStackedWidget *barStack() const { return m_barStack; }
    QStackedWidget *pageStack() const { return m_pageStack; }
    LeftBar *bar(int family) const { return m_bars[static_cast<std::size_t>(family)]; }
    int family() const { return m_family; }

    /// The first family, and the first entries of those that start so. Once all pages are there.
    void start();

    void showFamily(int family);

    /// Checks the entry of the mode that is on, and shows its page where a scene family is open.
    void followSceneMode();
    /// As above, and opens the family of that mode.
    void openFamilyOfScene();

    /// The monitor has told what it has: offers that.
    void followMonitor();

    /// Goes to where a command is set when no page but a bar sets it: the scene mode's entry.
    void showSetting(Command command);

    /// The page that is open; the scene page where none is, for an empty page shows the scene mode as well.
    Page *current() const;

    void updateControlText();

Q_SIGNALS:
    /// The entry of a scene mode was pressed; the value that belongs to it.
    void sceneChosen(int value);

private:
    void chooseEntry(int family, int index);
    void openFamily(int family);
    void showEntryPage(int family);
    void showSceneFamily(int family);
    void followLack();

    const PageSet &m_pages;
    TopTabFrame *m_tabs;
    QStackedWidget *m_barStack;
    QStackedWidget *m_pageStack;
    EmptyPage *m_emptyPage;
    std::array<LeftBar *, kFamilies> m_bars = {};
    int m_family = 0;
};
