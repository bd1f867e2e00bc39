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
    using Kind = MonitorEvent::Kind;
    SimulatedMonitor &target = monitor(index);
    switch (event.kind) {
    case Kind::Plug:
        return plug(index);
    case Kind::Unplug:
        return unplug(index);
    case Kind::Sleep:
        return sleep();
    case Kind::Wake:
        return wake();
    case Kind::Deaf:
        target.goDeaf(event.times);
        break;
    case Kind::Recover:
        target.recover();
        break;
    case Kind::Refuse:
        target.refuse(static_cast<std::uint8_t>(event.code), event.times);
        break;
    case Kind::RefuseWrites:
        target.refuseWrites(event.times);
        break;
    case Kind::DropChunks:
        target.dropChunks(event.times);
        break;
    case Kind::LoseReplies:
        target.loseReplies(event.times, event.code);
        break;
    case Kind::Garble:
        target.garbleReplies(event.times, event.code);
        break;
    case Kind::Delay:
        target.setDelay(event.read);
        break;
    case Kind::Latency:
        target.setLatency(event.read, event.write);
        break;
    }
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
