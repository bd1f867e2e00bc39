// What happens to the desk's monitors: what a script or a person in front of them does, and sleep.

#include <utility>

#include "platform/nativemessage.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

constexpr platform::milliseconds kMonitorWakes{2000};

void VirtualDesk::sleep()
{
    for (Seat &seat : m_seats)
        seat.monitor->setAsleep(true);
    Q_EMIT monitorsChanged();
}

void VirtualDesk::wake()
{
    displaysChanged();
    m_registrations.tellSystem(platform::kMessagePowerBroadcast, platform::kPowerResumeAutomatic);
    m_registrations.tellSystem(platform::kMessagePowerBroadcast, platform::kPowerResumeSuspend);
    m_registrations.tellSystem(platform::kMessageDisplayChange, 32);
    m_clock.callLater(kMonitorWakes, this, [this] {
        for (Seat &seat : m_seats)
            seat.monitor->setAsleep(false);
        Q_EMIT monitorsChanged();
    });
}

void VirtualDesk::apply(std::size_t index, const MonitorEvent &event)
{
    if (const auto *happening = std::get_if<DeskEvent>(&event.fault->does))
        happening->happen(*this, index, event);
    else
        monitor(index).arm(*event.fault, event.times, event.code);
    Q_EMIT monitorsChanged();
}

void VirtualDesk::startEvents()
{
    for (const TimedEvent &timed : std::exchange(m_events, {})) {
        m_clock.callLater(timed.at, this,
                          [this, timed] { apply(static_cast<std::size_t>(timed.monitor), timed.event); });
    }
}

} // namespace virtualdesk
