#include "platform/win32/win32displays.h"

#include <windows.h>

#include <shellscalingapi.h>

#include <QGuiApplication>
#include <QScreen>

#include "platform/win32/win32rects.h"
#include "platform/win32/win32strings.h"

namespace platform {

namespace {

/// A registry key opened for reading; closed when the object goes.
class RegistryKey
{
public:
    explicit RegistryKey(const QString &path)
    {
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, wide(path), 0, KEY_READ, &m_key) != ERROR_SUCCESS)
            m_key = nullptr;
    }
    ~RegistryKey()
    {
        if (m_key)
            RegCloseKey(m_key);
    }
    Q_DISABLE_COPY_MOVE(RegistryKey)

    explicit operator bool() const { return m_key; }
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

std::optional<DisplayDevice> displayDevice(const wchar_t *adapterName, std::uint32_t index, DWORD flags)
{
    DISPLAY_DEVICEW device = {};
    device.cb = sizeof(device);
    if (!EnumDisplayDevicesW(adapterName, index, &device, flags))
        return std::nullopt;
    return DisplayDevice{QString::fromWCharArray(device.DeviceName), QString::fromWCharArray(device.DeviceID)};
}

/// Of the screen that is the primary one now: the system's own number is that of the log-on.
UINT primaryDpi()
{
    UINT across = 0;
    UINT down = 0;
    const HMONITOR primary = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
    return SUCCEEDED(GetDpiForMonitor(primary, MDT_EFFECTIVE_DPI, &across, &down)) ? across : GetDpiForSystem();
}

BOOL CALLBACK visitDisplay(HMONITOR display, HDC, LPRECT, LPARAM visit)
{
    return (*reinterpret_cast<const std::function<bool(DisplayHandle)> *>(visit))(display);
}

} // namespace

std::optional<std::vector<DisplayPath>> Win32Displays::activePaths()
{
    UINT32 pathCount = 0;
    UINT32 modeCount = 0;
    if (GetDisplayConfigBufferSizes(QDC_ONLY_ACTIVE_PATHS, &pathCount, &modeCount) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<DISPLAYCONFIG_PATH_INFO> paths(pathCount);
    std::vector<DISPLAYCONFIG_MODE_INFO> modes(modeCount);
    if (QueryDisplayConfig(QDC_ONLY_ACTIVE_PATHS, &pathCount, paths.data(), &modeCount, modes.data(), nullptr) !=
        ERROR_SUCCESS)
        return std::nullopt;

    paths.resize(pathCount); // the call may have filled fewer than the sizes promised
    std::vector<DisplayPath> result;
    for (const DISPLAYCONFIG_PATH_INFO &path : paths) {
        const LUID adapter = path.sourceInfo.adapterId;
        const auto high = static_cast<std::uint32_t>(adapter.HighPart);
        result.push_back({std::uint64_t{high} << 32 | adapter.LowPart, path.sourceInfo.id});
    }
    return result;
}

void Win32Displays::enumerate(const std::function<bool(DisplayHandle)> &visit)
{
    EnumDisplayMonitors(nullptr, nullptr, visitDisplay, reinterpret_cast<LPARAM>(&visit));
}

std::optional<DisplayInfo> Win32Displays::info(DisplayHandle display)
{
    MONITORINFOEXW info = {};
    info.cbSize = sizeof(info); // 104: the extended form
    static_assert(sizeof(info) == 104);
    if (!GetMonitorInfoW(static_cast<HMONITOR>(display), &info))
        return std::nullopt;
    return DisplayInfo{rectOf(info.rcMonitor), QString::fromWCharArray(info.szDevice), rectOf(info.rcWork)};
}

std::optional<DisplayDevice> Win32Displays::adapter(std::uint32_t index)
{
    return displayDevice(nullptr, index, 0);
}

std::optional<DisplayDevice> Win32Displays::monitor(const QString &adapterName, std::uint32_t index)
{
    return displayDevice(wide(adapterName), index, EDD_GET_DEVICE_INTERFACE_NAME);
}

std::optional<RegistryValue> Win32Displays::localMachineValue(const QString &keyPath, const QString &valueName)
{
    const RegistryKey key(keyPath);
    if (!key)
        return std::nullopt;
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExW(key.get(), wide(valueName), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    if (RegQueryValueExW(key.get(), wide(valueName), nullptr, &type, reinterpret_cast<BYTE *>(bytes.data()), &size) !=
        ERROR_SUCCESS)
        return std::nullopt;
    bytes.truncate(static_cast<qsizetype>(size));
    return RegistryValue{type == REG_BINARY, bytes};
}

std::vector<Screen> Win32Displays::screens()
{
    std::vector<Screen> result;
    for (const QScreen *screen : QGuiApplication::screens())
        result.push_back({screen->name(), screen->geometry()});
    return result;
}

std::optional<WorkArea> Win32Displays::workArea()
{
    // Else a process that has not said yet how it scales is told of a screen at 100 %.
    const DPI_AWARENESS_CONTEXT before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    RECT area = {};
    const BOOL known = SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const UINT dpi = primaryDpi();
    if (before)
        SetThreadDpiAwarenessContext(before);
    if (!known)
        return std::nullopt;
    return WorkArea{rectOf(area).size(), dpi / double(USER_DEFAULT_SCREEN_DPI)};
}

bool Win32Displays::animatesControls()
{
    BOOL animates = TRUE;
    return !SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) || animates;
}

} // namespace platform
