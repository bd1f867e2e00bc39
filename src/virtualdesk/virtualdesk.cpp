#include "virtualdesk/virtualdesk.h"

#include <utility>

#include <QThread>

#include "platform/nativemessage.h"

namespace virtualdesk {

constexpr platform::milliseconds kMonitorWakes{2000};
constexpr std::uint64_t kColourBits = 32; // of the displays: what the message of their change tells

VirtualDesk::VirtualDesk(platform::Clock &clock, const DeskSetup &setup)
    : m_clock(clock), m_events(setup.events), m_displays(setup, m_handles), m_process(m_handles), m_accessory(clock),
      m_sound(clock, setup.sound)
{
    connect(&m_displays, &SimulatedDisplays::changed, this, &VirtualDesk::monitorsChanged);
    user = setup.user;
    m_process.administrator = setup.administrator;
    m_process.runasResult = setup.runasResult;
    m_process.startUp().writable = setup.startUpWritable;
    for (const AudioFault &fault : setup.audioFaults)
        m_sound.fail(fault);
    for (const MonitorSetup &each : setup.monitors) {
        auto monitor = std::make_unique<SimulatedMonitor>(*each.model, clock);
        monitor->setLatency(setup.readLatency, setup.writeLatency);
        monitor->setPlugged(each.plugged);
        for (const auto &[code, value] : each.values)
            monitor->setValue(code, value);
        if (each.replay)
            monitor->replay(*each.replay);
        m_displays.add(std::move(monitor), each.display, each.edid.value_or(buildEdid(*each.model)));
        for (const MonitorEvent &fault : each.faults)
            apply(monitorCount() - 1, fault);
    }
    if (setup.programs)
        m_applications.setList(*setup.programs);
    setUpAccessory(setup.accessory);
    m_screen.setPicture(setup.screen.picture);
    m_screen.failCopies(setup.screen.failures);
}

VirtualDesk::~VirtualDesk() = default;

void VirtualDesk::setUpAccessory(const AccessorySetup &setup)
{
    m_accessory.setForm(setup.form);
    m_accessory.setPlugged(setup.plugged);
    m_accessory.refuseWrites(setup.refusedWrites);
    m_accessory.failOpens(setup.failedOpens);
    m_accessory.unplugAtWrite(setup.unplugAtWrite);
    m_accessory.onPlugged([this](bool plugged) { accessoryPlugged(plugged); });
}

SimulatedMonitor *VirtualDesk::monitorOfHandle(void *handle)
{
    const std::optional<std::size_t> index = m_handles.monitorOf(handle);
    return index ? &monitor(*index) : nullptr;
}

void VirtualDesk::setPlugged(std::size_t index, bool plugged)
{
    if (monitor(index).isPlugged() == plugged)
        return;
    monitor(index).setPlugged(plugged);
    announceOnOwnThread([this, plugged] {
        m_displays.renew();
        deliverDeviceMessage(plugged ? platform::kDeviceArrival : platform::kDeviceRemoveComplete);
    });
}

void VirtualDesk::accessoryPlugged(bool plugged)
{
    announceOnOwnThread([this, plugged] {
        deliverDeviceMessage(plugged ? platform::kDeviceArrival : platform::kDeviceRemoveComplete, kHidInterfaceClass);
    });
}

/// Pulled out in the middle of a worker's request: the system tells the windows on their own thread.
void VirtualDesk::announceOnOwnThread(const std::function<void()> &announce)
{
    if (QThread::currentThread() == thread())
        announce();
    else
        QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
}

void VirtualDesk::sleep()
{
    ++m_sleeps;
    for (std::size_t i = 0; i < monitorCount(); ++i)
        monitor(i).setAsleep(true);
    Q_EMIT monitorsChanged();
}

void VirtualDesk::wake()
{
    m_displays.renew();
    m_registrations.tellSystem(platform::kMessagePowerBroadcast, platform::kPowerResumeAutomatic);
    m_registrations.tellSystem(platform::kMessagePowerBroadcast, platform::kPowerResumeSuspend);
    m_registrations.tellSystem(platform::kMessageDisplayChange, kColourBits);
    m_clock.callLater(kMonitorWakes, this, [this, sleeps = m_sleeps] {
        if (sleeps != m_sleeps) // gone to sleep again
            return;
        for (std::size_t i = 0; i < monitorCount(); ++i)
            monitor(i).setAsleep(false);
        Q_EMIT monitorsChanged();
    });
}

void VirtualDesk::changeDisplays()
{
    m_displays.renew();
    m_registrations.tellSystem(platform::kMessageDisplayChange, kColourBits);
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

void VirtualDesk::deliverDeviceMessage(std::uint64_t event, const platform::Guid &interfaceClass)
{
    m_registrations.broadcast(event, interfaceClass);
}

} // namespace virtualdesk
