#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QObject>

#include "platform/clock.h"
#include "platform/displays.h"
#include "virtualdesk/applications.h"
#include "virtualdesk/applicationwindows.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/devicemessages.h"
#include "virtualdesk/filefaults.h"
#include "virtualdesk/hotkeys.h"
#include "virtualdesk/monitorhandles.h"
#include "virtualdesk/simulatedaccessory.h"
#include "virtualdesk/simulateddisplays.h"
#include "virtualdesk/simulatedendpoint.h"
#include "virtualdesk/simulatedprocess.h"
#include "virtualdesk/simulatedscreen.h"

namespace virtualdesk {

/// A desk without hardware: displays with simulated monitors on them, and what the program may ask of the system, an
/// object for each concern. Here is what concerns several of them. Tests set it up and look at it by these functions;
/// the program reaches it through the platform's interfaces only. Interface thread, except monitorOfHandle and where an
/// object says else.
class VirtualDesk : public QObject
{
    Q_OBJECT

public:
    /// The clock outlives the desk. Without a set-up: the default desk without latency.
    explicit VirtualDesk(platform::Clock &clock, const DeskSetup &setup = defaultSetup());
    ~VirtualDesk() override;

    std::size_t monitorCount() const { return m_displays.monitorCount(); }
    SimulatedMonitor &monitor(std::size_t index) { return m_displays.monitor(index); }
    /// Null for a handle that is not open, which is counted. Safe from any thread.
    SimulatedMonitor *monitorOfHandle(void *handle);

    /// Changes the enumeration and tells the windows that registered for monitors.
    void plug(std::size_t index) { setPlugged(index, true); }
    void unplug(std::size_t index) { setPlugged(index, false); }
    /// The computer goes to sleep, and its monitors with it.
    void sleep();
    /// It wakes, tells the windows so, more than once, as Windows does, and has new handles; the monitors answer two
    /// seconds later.
    void wake();
    /// The displays stand otherwise or show another resolution: they have new handles, and the windows are told.
    void changeDisplays();
    /// Does to a monitor what a script may ask for.
    void apply(std::size_t index, const MonitorEvent &event);
    /// Starts the timed events of the script; calls after the first do nothing.
    void startEvents();
    /// A device-interface broadcast, kDeviceArrival or kDeviceRemoveComplete, to the windows registered for its class.
    void deliverDeviceMessage(std::uint64_t event, const platform::Guid &interfaceClass = kMonitorInterfaceClass);
    /// Somebody presses a key, kModifier... bits and virtual-key code. False when the program has not registered it.
    bool pressKey(std::uint32_t modifiers, std::uint32_t virtualKey) { return m_hotKeys.press(modifiers, virtualKey); }

    SimulatedDisplays &displays() { return m_displays; }
    MonitorHandles &handles() { return m_handles; }
    SimulatedProcess &process() { return m_process; }
    FileFaults fileFaults;
    UserSetup user;
    SimulatedEndpoint &sound() { return m_sound; }
    SimulatedScreen &screen() { return m_screen; }
    DeviceRegistrations &registrations() { return m_registrations; }
    HotKeys &hotKeys() { return m_hotKeys; }
    /// The other programs.
    Applications &applications() { return m_applications; }
    /// Their windows.
    ApplicationWindows &windows() { return m_windows; }

    /// Plugging it in and out changes the HID enumeration and tells the windows that registered for HID devices.
    SimulatedAccessory &accessory() { return m_accessory; }
    /// Whether the user lets what is shown move.
    bool animatesControls = true;
    /// How much of the screen windows may fill; without a value what the real one has.
    std::optional<platform::WorkArea> workArea;

    /// Whether there are HID devices beside it.
    bool hasHidDevices = true;
    /// Entries of HID enumerations that were not released.
    int hidEntriesHeld = 0;

Q_SIGNALS:
    /// A monitor was plugged or unplugged, or a fault was set on one.
    void monitorsChanged();

private:
    void setPlugged(std::size_t index, bool plugged);
    void accessoryPlugged(bool plugged);
    void setUpAccessory(const AccessorySetup &setup);
    void announceOnOwnThread(const std::function<void()> &announce);

    platform::Clock &m_clock;
    std::vector<TimedEvent> m_events;
    int m_sleeps = 0; ///< so far
    MonitorHandles m_handles;
    SimulatedDisplays m_displays;
    SimulatedProcess m_process;
    DeviceRegistrations m_registrations;
    HotKeys m_hotKeys;
    Applications m_applications;
    ApplicationWindows m_windows{m_applications, m_displays};
    SimulatedAccessory m_accessory;
    SimulatedEndpoint m_sound;
    SimulatedScreen m_screen;
};

} // namespace virtualdesk
