#pragma once

#include <memory>

#include <QObject>

#include "ddc_protocol/command.h"

class AutomaticWriter;
class CommandQueue;
class ForegroundWatch;
class HotkeyOverlay;
class KeyFields;
class PageSet;
class QStackedWidget;

/// Hot keys and scenario following as the window sees them: their pages, and what they sent on the desktop. And
/// what is sent by itself.
class Automation : public QObject
{
    Q_OBJECT
public:
    /// Makes the pages on the stack and adds them to the set.
    Automation(CommandQueue &queue, PageSet &pages, QStackedWidget *stack, QObject *parent);
    ~Automation() override;

    /// Tells on the desktop what a hot key did.
    HotkeyOverlay *overlay() const { return m_overlay; }

    /// Sends what no user asked for just now; that a day's writes are used up is told on the desktop.
    AutomaticWriter *writer() const { return m_writer; }

    /// The fields for hot keys of all pages.
    KeyFields &keyFields() const { return *m_keyFields; }

    /// Hears which window comes to the front.
    ForegroundWatch &foregroundWatch() const { return *m_watch; }

Q_SIGNALS:
    /// A key or a followed program has sent something, which the pages are to show.
    void sent(Command command);

private:
    void showResult(int function, Command command, int value, bool ok);
    QString valueText(int function, Command command, int value) const;

    const PageSet &m_pages;
    std::unique_ptr<KeyFields> m_keyFields;
    HotkeyOverlay *m_overlay;
    AutomaticWriter *m_writer;
    ForegroundWatch *m_watch = nullptr;
};
