#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "platform/displays.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/monitorhandles.h"

class QScreen;

namespace virtualdesk {

/// The displays and the monitors on them, as the system enumerates them. Interface thread, except monitor().
class SimulatedDisplays : public QObject
{
    Q_OBJECT

public:
    /// Faults with the displays' handles are counted there.
    SimulatedDisplays(const DeskSetup &setup, MonitorHandles &handles)
        : m_handles(handles), m_displays(setup.displays), m_topology(setup.topology)
    {
    }

    /// With the EDID that the registry has of it.
    void add(std::unique_ptr<SimulatedMonitor> monitor, int display, const QByteArray &edid);
    std::size_t monitorCount() const { return m_seats.size(); }
    SimulatedMonitor &monitor(std::size_t index) { return *m_seats.at(index).monitor; }
    const SimulatedMonitor &monitor(std::size_t index) const { return *m_seats.at(index).monitor; }

    // For the platform's enumeration.

    std::vector<platform::DisplayPath> paths() const;
    std::vector<platform::DisplayHandle> enumerate() const;
    std::optional<platform::DisplayInfo> info(platform::DisplayHandle display);
    std::optional<platform::DisplayDevice> adapter(std::uint32_t index) const;
    std::optional<platform::DisplayDevice> monitorDevice(const QString &adapterName, std::uint32_t index) const;
    std::optional<platform::RegistryValue> registryValue(const QString &keyPath, const QString &valueName) const;
    std::vector<platform::Screen> screens() const;
    /// The monitors on a display; nothing for a display that is not enumerated (any more).
    std::optional<std::vector<std::size_t>> monitorsOf(platform::DisplayHandle display);
    /// A display whose monitors can be counted, but not fetched.
    std::optional<std::size_t> unfetchableDisplay;
    bool isFetchable(platform::DisplayHandle display) { return displayOf(display) != unfetchableDisplay; }

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

    /// From now on the displays have other handles.
    void renew();

Q_SIGNALS:
    /// The displays have other handles, or stand otherwise.
    void changed();

private:
    struct Seat
    {
        std::unique_ptr<SimulatedMonitor> monitor;
        int display;
        std::optional<QByteArray> edid;
    };

    std::vector<std::size_t> pluggedOn(std::size_t display) const;
    const QScreen *realScreen(std::size_t display) const;
    QRect boundsOf(std::size_t display) const;
    std::optional<std::size_t> displayOf(platform::DisplayHandle handle);
    QString hardwarePath(std::size_t index) const;

    MonitorHandles &m_handles;
    std::vector<DisplaySetup> m_displays;
    std::vector<Seat> m_seats;
    Topology m_topology;
    std::optional<std::vector<platform::DisplayPath>> m_paths;
    std::optional<std::vector<platform::Screen>> m_screens;
    std::uintptr_t m_generation = 1; // display handles of an older set-up are outdated
};

} // namespace virtualdesk
