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

    /// Blocks the calling thread, until the program ends at the latest.
    virtual void sleep(milliseconds duration) = 0;

    /// As sleep, but ends as soon as a stop is asked for, where the clock can.
    virtual void sleepUnlessStopped(milliseconds duration, const std::stop_token &stop)
    {
        if (!stop.stop_requested())
            sleep(duration);
    }

    /// Sleeps before another attempt. False when the program ends: then there is no other attempt.
    bool sleepBeforeRetry(milliseconds duration)
    {
        sleep(duration);
        return !hasEnded();
    }

    /// The local date and time.
    virtual QDateTime now() = 0;

    /// Calls task once, on the context's thread, when the delay has passed; never when the context is gone by then, or
    /// the program ends.
    virtual void callLater(milliseconds delay, QObject *context, std::function<void()> task) = 0;

    /// The program ends: whoever sleeps wakes, and nobody sleeps any more. There is no way back.
    void end() { m_end.request_stop(); }
    bool hasEnded() const { return m_end.stop_requested(); }

protected:
    std::stop_token endOfProgram() const { return m_end.get_token(); }

private:
    std::stop_source m_end;
};

} // namespace platform
