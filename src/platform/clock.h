#pragma once

#include <chrono>
#include <functional>

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

    /// The local date and time.
    virtual QDateTime now() = 0;

    /// Calls task once, on the context's thread, when the delay has passed; never when the context is gone by then.
    virtual void callLater(milliseconds delay, QObject *context, std::function<void()> task) = 0;
};

} // namespace platform
