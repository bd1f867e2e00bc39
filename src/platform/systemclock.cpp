#include "platform/systemclock.h"

#include <thread>

#include <QTimer>

namespace platform {

void SystemClock::sleep(milliseconds duration)
{
    std::this_thread::sleep_for(duration);
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
