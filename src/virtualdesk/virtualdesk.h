#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <QObject>
#include <QStringList>

#include "platform/clock.h"
#include "platform/displays.h"
#include "platform/process.h"
#include "virtualdesk/applications.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/devicemessages.h"
#include "virtualdesk/filefaults.h"
#include "virtualdesk/hotkeys.h"
#include "virtualdesk/simulatedaccessory.h"
#include "virtualdesk/simulatedendpoint.h"
#include "virtualdesk/simulatedmonitor.h"
#include "virtualdesk/startupfile.h"

namespace virtualdesk {

/// A program that was asked to be started.
struct StartedProgram
{
    QString program;
    QStringList arguments;
    QString folder;
};

/// A desk without hardware: displays with simulated monitors on them, and what the program may ask of the system. Tests
/// set it up and look at it by the functions here; the program reaches it through the platform's interfaces only.
/// Interface thread, except monitorOfHandle.
class VirtualDesk : public QObject
{
    Q_OBJECT

public:
    /// The clock outlives the desk. Without a set-up: the default desk without latency.
    explicit VirtualDesk(platform::Clock &clock, const DeskSetup &setup = defaultSetup());
    ~VirtualDesk() override;

    // The monitors.

    std::size_t monitorCount() const { return m_seats.size(); }
    SimulatedMonitor &monitor(std::size_t index) { return *m_seats.at(index).monitor; }
    /// Changes the enumeration and tells the windows that registered for monitors.
    void plug(std::size_t index);
    void unplug(std::size_t index);
    /// The computer goes to sleep, and its monitors with it.
    void sleep();
    /// It wakes, tells the windows so, more than once, as Windows does, and has new handles; the monitors answer two
    /// seconds later.
    void wake();
    /// Does to a monitor what a script may ask for.
    void apply(std::size_t index, const MonitorEvent &event);
    /// Starts the timed events of the script; calls after the first do nothing.
    void startEvents();

    // Displays, for the platform's enumeration.

    std::vector<platform::DisplayPath> paths() const;
    std::vector<platform::DisplayHandle> displays() const;
    std::optional<platform::DisplayInfo> displayInfo(platform::DisplayHandle display);
    std::optional<platform::DisplayDevice> adapter(std::uint32_t index) const;
    std::optional<platform::DisplayDevice> monitorDevice(const QString &adapterName, std::uint32_t index) const;
    std::optional<platform::RegistryValue> registryValue(const QString &keyPath, const QString &valueName) const;
    std::vector<platform::Screen> screens() const;

    /// Each replaces what follows from the plugged monitors, until called with nothing. An empty path list is a failed
    /// call.
    void setPaths(std::optional<std::vector<platform::DisplayPath>> paths) { m_paths = std::move(paths); }
    void setScreens(std::optional<std::vector<platform::Screen>> screens) { m_screens = std::move(screens); }
    /// Replaces the displays; monitors keep their display's index, and those beyond the last one are not seen.
    void setDisplays(std::vector<DisplaySetup> displays);
    /// Moves a monitor to another display.
    void setMonitorDisplay(std::size_t index, int display);
    /// The registry's EDID of a monitor; nothing takes the value away.
    void setRegistryEdid(std::size_t index, std::optional<QByteArray> edid);

    // Handles of physical monitors.

    /// The monitors on a display; nothing for a display that is not enumerated (any more).
    std::optional<std::vector<std::size_t>> monitorsOf(platform::DisplayHandle display);
    /// A display whose monitors can be counted, but not fetched.
    std::optional<std::size_t> unfetchableDisplay;
    bool isFetchable(platform::DisplayHandle display) { return displayOf(display) != unfetchableDisplay; }
    /// The first handle is 0, which is one like any other.
    void *openHandle(std::size_t index);
    void closeHandle(void *handle);
    /// Null for a handle that is not open, which is counted. Safe from any thread.
    SimulatedMonitor *monitorOfHandle(void *handle);
    int handlesOpen() const;
    /// Uses of handles that were closed, outdated or never given.
    int handleFaults() const;

    // The process.

    bool administrator = true;
    int runasResult = 42;
    QStringList systemFolders; ///< none at first
    /// Whether the program may be told by nobody what to load.
    bool restrictsLibraries = false;
    /// Whether programs are really started and this one really quits; a test leaves it off.
    bool startsPrograms = false;
    /// Starting a program when none is really started: whether it succeeds.
    std::function<bool()> start = [] { return true; };
    int quits = 0;                        ///< how often this program was asked to end
    std::vector<StartedProgram> started;  ///< detached
    std::vector<StartedProgram> elevated; ///< asked for with "runas"

    platform::NamedMutex createMutex(const QString &name);
    void closeMutex(void *handle);
    /// What starts at log-on.
    StartUpFile &startUp() { return m_startUp; }
    /// Where the files are that stand for names and for the log-on list; the system's folder for temporary files at
    /// first.
    void setMutexFolder(const QString &folder);

    /// The user logs off: the program is asked first and, unless it refuses, told; false when it refused.
    bool endSession();

    // The disk. Any thread.

    FileFaults fileFaults;

    // The sound system. Any thread.

    SimulatedEndpoint &sound() { return m_sound; }

    // Device messages.

    DeviceRegistrations &registrations() { return m_registrations; }
    /// A device-interface broadcast, kDeviceArrival or kDeviceRemoveComplete, to the windows registered for its class.
    void deliverDeviceMessage(std::uint64_t event, const platform::Guid &interfaceClass = kMonitorInterfaceClass);

    // The accessory. Plugging it in and out changes the HID enumeration and tells the windows that registered for HID
    // devices.

    SimulatedAccessory &accessory() { return m_accessory; }
    /// Whether there are HID devices beside it.
    bool hasHidDevices = true;
    /// Entries of HID enumerations that were not released.
    int hidEntriesHeld = 0;

    // Global keys.

    HotKeys &hotKeys() { return m_hotKeys; }
    /// Somebody presses a key, kModifier... bits and virtual-key code. False when the program has not registered it.
    bool pressKey(std::uint32_t modifiers, std::uint32_t virtualKey) { return m_hotKeys.press(modifiers, virtualKey); }

    // The other programs.

    Applications &applications() { return m_applications; }

Q_SIGNALS:
    /// A monitor was plugged or unplugged, or a fault was set on one.
    void monitorsChanged();

private:
    struct Seat
    {
        std::unique_ptr<SimulatedMonitor> monitor;
        int display;
        std::optional<QByteArray> edid;
    };
    struct OpenMutex;

    void setPlugged(std::size_t index, bool plugged);
    void accessoryPlugged(bool plugged);
    void announceOnOwnThread(const std::function<void()> &announce);
    void displaysChanged();
    std::vector<std::size_t> pluggedOn(std::size_t display) const;
    QRect boundsOf(std::size_t display) const;
    std::optional<std::size_t> displayOf(platform::DisplayHandle handle);
    QString hardwarePath(std::size_t index) const;
    void countHandleFault();

    platform::Clock &m_clock;
    std::vector<DisplaySetup> m_displays;
    std::vector<Seat> m_seats;
    std::vector<TimedEvent> m_events;
    Topology m_topology;
    std::optional<std::vector<platform::DisplayPath>> m_paths;
    std::optional<std::vector<platform::Screen>> m_screens;
    std::uintptr_t m_displayGeneration = 1; // display handles of an older set-up are outdated
    DeviceRegistrations m_registrations;
    HotKeys m_hotKeys;
    Applications m_applications;
    SimulatedAccessory m_accessory;
    QString m_mutexFolder;
    StartUpFile m_startUp;
    SimulatedEndpoint m_sound;
    std::vector<std::unique_ptr<OpenMutex>> m_mutexes;

    mutable std::mutex m_handleMutex; // guards what follows
    std::map<void *, std::size_t> m_handles;
    std::uintptr_t m_nextHandle = 0;
    int m_handleFaults = 0;
};

} // namespace virtualdesk
