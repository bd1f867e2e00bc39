#pragma once

#include <atomic>

#include <QDeadlineTimer>
#include <QMetaMethod>
#include <QThread>

/// A thread whose end is counted. The toolkit's own wait may return by a lock that ThreadSanitizer does not see; what
/// the thread did is then taken for a race. It sees the count, whoever waited.
class JoinedThread : public QThread
{
public:
    explicit JoinedThread(QObject *parent = nullptr) : QThread(parent) { countLast(); }

    /// Waits for the thread's end; false when it did not end in time.
    bool wait(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever))
    {
        const bool ended = QThread::wait(deadline);
        m_ends.load();
        return ended;
    }
    bool wait(unsigned long milliseconds) { return wait(QDeadlineTimer(static_cast<qint64>(milliseconds))); }

protected:
    void connectNotify(const QMetaMethod &signal) override
    {
        if (!m_counts && signal == QMetaMethod::fromSignal(&QThread::finished))
            countLast();
    }

private:
    /// Counts on the thread, behind whoever else is told of its end: telling a queued one still reads this object.
    void countLast()
    {
        m_counts = true;
        disconnect(m_counting);
        m_counting = connect(
            this, &QThread::finished, this, [this] { ++m_ends; }, Qt::DirectConnection);
        m_counts = false;
    }

    QMetaObject::Connection m_counting;
    bool m_counts = false; ///< the connection that is made is the count's own
    std::atomic<int> m_ends = 0;
};
