#pragma once

#include <atomic>

#include <QDeadlineTimer>
#include <QThread>

/// A thread whose end is counted. The toolkit's own wait may return by a lock that ThreadSanitizer does not see; what
/// the thread did is then taken for a race. It sees the count, whoever waited.
class JoinedThread : public QThread
{
public:
    explicit JoinedThread(QObject *parent = nullptr) : QThread(parent)
    {
        connect(
            this, &QThread::finished, this, [this] { ++m_ends; }, Qt::DirectConnection); // on the thread, as its last
    }

    /// Waits for the thread's end; false when it did not end in time.
    bool wait(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever))
    {
        const bool ended = QThread::wait(deadline);
        m_ends.load();
        return ended;
    }
    bool wait(unsigned long milliseconds) { return wait(QDeadlineTimer(static_cast<qint64>(milliseconds))); }

private:
    std::atomic<int> m_ends = 0;
};
