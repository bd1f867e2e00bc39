#include "platform/joinedthread.h"

#include <utility>

JoinedThread::JoinedThread(QObject *parent) : QThread(parent)
{
    connect(this, &JoinedThread::told, this, &JoinedThread::doTold, Qt::QueuedConnection);
    countLast();
}

bool JoinedThread::wait(QDeadlineTimer deadline)
{
    const bool joined = QThread::wait(deadline);
    m_ends.load();
    return joined;
}

void JoinedThread::tell(std::function<void()> what)
{
    const std::lock_guard lock(m_tellMutex);
    m_waiting.push_back(std::move(what));
    Q_EMIT told(); // under the lock: whoever takes it has what the toolkit makes of the signal behind it as well
}

void JoinedThread::doTold()
{
    std::function<void()> what;
    {
        const std::lock_guard lock(m_tellMutex);
        what = std::move(m_waiting.front());
        m_waiting.pop_front();
    }
    what();
}

void JoinedThread::connectNotify(const QMetaMethod &signal)
{
    if (!m_counts && signal == QMetaMethod::fromSignal(&QThread::finished))
        countLast();
}

/// Counts on the thread, behind whoever else is told of its end: telling a queued one still reads this object.
void JoinedThread::countLast()
{
    m_counts = true;
    disconnect(m_counting);
    const auto count = [this] {
        tell([this] { Q_EMIT ended(); });
        ++m_ends;
    };
    m_counting = connect(this, &QThread::finished, this, count, Qt::DirectConnection);
    m_counts = false;
}
