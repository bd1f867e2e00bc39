#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

#include <QDeadlineTimer>
#include <QMetaMethod>
#include <QThread>

/// A thread whose end is counted, and which hands over what it has to tell behind a lock of its own. The toolkit's own
/// wait and its queued arguments go through locks that ThreadSanitizer does not see; what the thread did is then taken
/// for a race. It sees the count and this lock.
class JoinedThread : public QThread
{
    Q_OBJECT
public:
    explicit JoinedThread(QObject *parent = nullptr);

    /// Waits for the thread's end; false when it did not end in time.
    bool wait(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    bool wait(unsigned long milliseconds) { return wait(QDeadlineTimer(static_cast<qint64>(milliseconds))); }

Q_SIGNALS:
    /// As finished, but told by tell, behind all that was told before.
    void ended();
    /// Something waits to be done by whom this object belongs to. Nobody else's business.
    void told();

protected:
    /// Has something done, such as a signal emitted, by the thread that this object belongs to, as soon as its event
    /// loop comes to it. In the order in which it was told.
    void tell(std::function<void()> what);

    void connectNotify(const QMetaMethod &signal) override;

private:
    void countLast();
    void doTold();

    QMetaObject::Connection m_counting;
    bool m_counts = false; ///< the connection that is made is the count's own
    std::atomic<int> m_ends = 0;
    std::mutex m_tellMutex; // guards what follows
    std::deque<std::function<void()>> m_waiting;
};
