#include "platform/systemclock.h"

#include <condition_variable>
#include <mutex>

#include <QTimer>

namespace platform {

void SystemClock::sleep(milliseconds duration)
{
    sleepUnlessStopped(duration, {});
}

void SystemClock::sleepUnlessStopped(milliseconds duration, const std::stop_token &stop)
{
    std::mutex mutex;
    std::condition_variable_any woken;
    const std::stop_callback ended(endOfProgram(), [&mutex, &woken] {
        const std::lock_guard lock(mutex); // else it might come between the sleeper's look and its sleep
        woken.notify_all();
    });
    std::unique_lock lock(mutex);
    woken.wait_for(lock, stop, duration, [this] { return hasEnded(); });
}

QDateTime SystemClock::now()
{
    return QDateTime::currentDateTime();
}

void SystemClock::callLater(milliseconds delay, QObject *context, std::function<void()> task)
{
    QTimer::singleShot(delay, context, [this, task = std::move(task)] {
        if (!hasEnded())
            task();
    });
}

} // namespace platform
