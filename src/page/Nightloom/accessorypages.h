#pragma once

#include <functional>

#include <QObject>

class CommandQueue;
class LiveDisplay;
class PageSet;
class QStackedWidget;

/// The accessory as the program has it: its handle and form, its pages, and what goes on behind them.
class AccessoryPages : public QObject
{
    Q_OBJECT
public:
    /// Takes the stored form and opens the accessory if it is there; tells the user by @p warn when it is missed.
    AccessoryPages(std::function<void()> warn, QObject *parent);
    ~AccessoryPages() override;

    /// Makes the pages on the stack and adds them to the set.
    void build(CommandQueue &queue, PageSet &pages, QStackedWidget *stack);

    /// Looks for the accessory, whatever was found before. False when it is not there, which the user is told.
    bool ensureConnected();

    /// While something else is at work what lives on the matrix holds still.
    void setInterrupted(bool interrupted);

    /// At the end of the program, while the pages that the work belongs to are still there. What is on the matrix is
    /// gone then: nobody would keep it up to date.
    void end();

Q_SIGNALS:
    /// Long work of a page begins or ends.
    void workChanged(bool begins);

private:
    std::function<void()> m_warn;
    LiveDisplay *m_liveDisplay;
};
