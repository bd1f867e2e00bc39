#pragma once

#include <chrono>
#include <functional>
#include <stop_token>

#include <QDateTime>

class QObject;

namespace platform {

using std::chrono::milliseconds;

/// Every deliberate wait and every "now" of the program. Safe from any thread.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Blocks the calling thread.
    virtual void sleep(milliseconds duration) = 0;

    /// As sleep, but ends as soon as a stop is asked for, where the clock can.
    virtual void sleepUnlessStopped(milliseconds duration, const std::stop_token &stop)
    {
        if (!stop.stop_requested())
            sleep(duration);
    }

    /// The local date and time.
    virtual QDateTime now() = 0;

    /// Calls task once, on the context's thread, when the delay has passed; never when the context is gone by then.
    virtual void callLater(milliseconds delay, QObject *context, std::function<void()> task) = 0;
};

} // namespace platform
