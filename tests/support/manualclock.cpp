#include "support/manualclock.h"

#include <algorithm>

void ManualClock::sleep(platform::milliseconds duration)
{
    const std::lock_guard lock(m_mutex);
    if (hasEnded())
        return;
    m_waits.append(static_cast<int>(duration.count()));
    m_now = m_now.addMSecs(duration.count());
}

QDateTime ManualClock::now()
{
    const std::lock_guard lock(m_mutex);
    return m_now;
}

void ManualClock::callLater(platform::milliseconds delay, QObject *context, std::function<void()> task)
{
    const std::lock_guard lock(m_mutex);
    m_tasks.push_back({m_now.addMSecs(delay.count()), context, std::move(task)});
}

void ManualClock::advance(platform::milliseconds duration)
{
    std::unique_lock lock(m_mutex);
    const QDateTime target = m_now.addMSecs(duration.count());
    for (;;) {
        const auto next = std::min_element(m_tasks.begin(), m_tasks.end(),
                                           [](const Task &a, const Task &b) { return a.due < b.due; });
        if (next == m_tasks.end() || next->due > target)
            break;
        const Task task = *next;
        m_tasks.erase(next);
        m_now = std::max(m_now, task.due);
        lock.unlock();
        if (task.context && !hasEnded())
            task.run();
        lock.lock();
    }
    m_now = std::max(m_now, target);
}

void ManualClock::setNow(const QDateTime &now)
{
    const std::lock_guard lock(m_mutex);
    m_now = now;
}

QList<int> ManualClock::takeWaits()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_waits, {});
}

std::size_t ManualClock::tasksWaiting() const
{
    const std::lock_guard lock(m_mutex);
    return m_tasks.size();
}
