#pragma once

#include <QObject>

#include "page/Nightloom/parts/accessorycheck.h"

class CommandQueue;
class LiveDisplay;
class PageSet;
class QStackedWidget;

/// The accessory's pages and what goes on behind them: long work, and what lives on the matrix.
class AccessoryPages : public QObject
{
    Q_OBJECT
public:
    /// Makes the pages on the stack and adds them to the set.
    AccessoryPages(const AccessoryCheck &check, CommandQueue &queue, PageSet &pages, QStackedWidget *stack);

    /// While something else is at work what lives on the matrix holds still.
    void setInterrupted(bool interrupted);

    /// At the end of the program, while the pages that the work belongs to are still there. What is on the matrix is
    /// gone then: nobody would keep it up to date.
    void end();

Q_SIGNALS:
    /// Long work of a page begins or ends.
    void workChanged(bool begins);

private:
    LiveDisplay *m_liveDisplay;
};
