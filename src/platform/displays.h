#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QRect>
#include <QString>

namespace platform {

/// One display as the platform enumerates it (HMONITOR). Opaque; valid until the display set-up changes.
using DisplayHandle = void *;

/// One active display path: which source (desktop surface) of which adapter it shows.
struct DisplayPath
{
    std::uint64_t adapterId = 0;
    std::uint32_t sourceId = 0;
    bool operator==(const DisplayPath &) const = default;
};

/// What GetMonitorInfoW tells of a display.
struct DisplayInfo
{
    QRect bounds;        ///< in desktop pixels
    QString deviceName;  ///< ends in DISPLAY and the display number, such as "\\.\DISPLAY1"
    QRect workArea = {}; ///< what windows may fill of it: all but the taskbar and its like
};

/// One record of EnumDisplayDevicesW.
struct DisplayDevice
{
    QString name; ///< "\\.\DISPLAY1" for an adapter, "\\.\DISPLAY1\Monitor0" for a monitor
    QString id;   ///< for a monitor its device-interface name, "\\?\DISPLAY#...#{class}"
};

/// One screen as the interface toolkit sees it.
struct Screen
{
    QString name;
    QRect geometry;
};

/// The part of a screen that windows may fill: all but the taskbar and its like.
struct WorkArea
{
    QSize pixels;     ///< of the screen itself, before any scaling
    double scale = 1; ///< that the user has set for the screen: 1.5 at 150 %
};

/// A registry value as it is stored; only binary values matter to the program.
struct RegistryValue
{
    bool isBinary = false;
    QByteArray bytes;
};

/// The platform's display enumeration. All calls are made on the interface thread.
class Displays
{
public:
    virtual ~Displays() = default;

    /// The active display paths (GetDisplayConfigBufferSizes, QueryDisplayConfig); nothing when a call fails.
    virtual std::optional<std::vector<DisplayPath>> activePaths() = 0;

    /// Calls visit once per display of the whole desktop, until it returns false (EnumDisplayMonitors).
    virtual void enumerate(const std::function<bool(DisplayHandle)> &visit) = 0;

    /// Bounds and device name of one display (GetMonitorInfoW, extended form); nothing when the call fails.
    virtual std::optional<DisplayInfo> info(DisplayHandle display) = 0;

    /// The index-th display adapter, from 0; nothing past the last (EnumDisplayDevicesW).
    virtual std::optional<DisplayDevice> adapter(std::uint32_t index) = 0;

    /// The index-th monitor of an adapter, from 0, with its device-interface name; nothing past the last.
    virtual std::optional<DisplayDevice> monitor(const QString &adapterName, std::uint32_t index) = 0;

    /// A value under HKEY_LOCAL_MACHINE, opened for reading; nothing when key or value is missing or not readable.
    virtual std::optional<RegistryValue> localMachineValue(const QString &keyPath, const QString &valueName) = 0;

    /// The toolkit's screens, in its order.
    virtual std::vector<Screen> screens() = 0;

    /// The primary screen's work area, on which the program opens (SystemParametersInfoW, GetDpiForMonitor). May be
    /// asked before the toolkit has begun; nothing when it is not known.
    virtual std::optional<WorkArea> workArea() = 0;

    /// Whether the user lets what is shown move by itself (SystemParametersInfoW, client area animation).
    virtual bool animatesControls() = 0;
};

} // namespace platform
