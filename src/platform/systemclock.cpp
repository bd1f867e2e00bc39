#include "platform/systemclock.h"

#include <condition_variable>
#include <mutex>
#include <thread>

#include <QTimer>

namespace platform {

void SystemClock::sleep(milliseconds duration)
{
    std::this_thread::sleep_for(duration);
}

void SystemClock::sleepUnlessStopped(milliseconds duration, const std::stop_token &stop)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any stopped;
    stopped.wait_for(lock, stop, duration, [] { return false; });
}

QDateTime SystemClock::now()
{
    return QDateTime::currentDateTime();
}

void SystemClock::callLater(milliseconds delay, QObject *context, std::function<void()> task)
{
    QTimer::singleShot(delay, context, std::move(task));
}

} // namespace platform
