#pragma once

#include "platform/clock.h"

namespace platform {

/// The clock of both desks: real time.
class SystemClock final : public Clock
{
public:
    void sleep(milliseconds duration) override;
    void sleepUnlessStopped(milliseconds duration, const std::stop_token &stop) override;
    QDateTime now() override;
    void callLater(milliseconds delay, QObject *context, std::function<void()> task) override;
};

} // namespace platform
