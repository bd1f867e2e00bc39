#pragma once

#include <functional>

#include <QObject>

#include "ddc_protocol/monitoridentity.h"

class PageHead;

/// What a page tells under its title: why something was not done, or that the monitor did not take what was set last.
class PageResult : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// From now on it is told there. Before, and on pages without a head, only what the monitor did not take is said,
    /// to assistive software: a mark beside the control is all that is seen of it.
    void setHead(PageHead *head);

    /// What is said now; empty when there is nothing to say.
    QString text() const;

    /// The number of a change that begins now and whose result comes later.
    unsigned begin() { return ++m_newest; }

    /// Says why something was not done, until something else is done; nothing when it is empty. It may be tried once
    /// more by @p tryAgain, while the monitor is the same one.
    void tell(const QString &why, std::function<void()> tryAgain = {});

    /// Whether the monitor took what was set last. What is called @p again may be tried once more by @p tryAgain.
    void show(bool ok, const QString &again, std::function<void()> tryAgain);

    /// The same of a change that began before; what was told of a newer one stays.
    void showOf(unsigned change, bool ok, const QString &again, std::function<void()> tryAgain);

    /// What was said of another monitor than the one in use is not said any more.
    void followMonitor();

private:
    PageHead *m_head = nullptr;
    std::function<void()> m_tryAgain; ///< what the monitor did not take
    MonitorAskedAbout m_monitor;      ///< of which something is said
    unsigned m_newest = 0;            ///< change
    unsigned m_told = 0;              ///< the change that is told of
};
