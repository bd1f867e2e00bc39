#include "platform/win32/win32desktopwindows.h"

#include <array>

#include <windows.h>

#include <dwmapi.h>

#include "platform/win32/win32rects.h"

namespace platform {

static_assert(kStyleMaximised == WS_MAXIMIZE && kStyleMinimised == WS_MINIMIZE && kStyleVisible == WS_VISIBLE);
static_assert(kStyleSizable == WS_THICKFRAME && kStyleCaption == WS_CAPTION);
static_assert(int(ShowWindowAs::Maximised) == SW_MAXIMIZE && int(ShowWindowAs::Restored) == SW_RESTORE);

WindowHandle Win32DesktopWindows::foregroundWindow()
{
    return GetForegroundWindow();
}

std::optional<QRect> Win32DesktopWindows::windowRect(WindowHandle window)
{
    RECT rect = {};
    if (!GetWindowRect(static_cast<HWND>(window), &rect))
        return std::nullopt;
    return rectOf(rect);
}

std::optional<QRect> Win32DesktopWindows::visibleRect(WindowHandle window)
{
    RECT rect = {};
    if (FAILED(DwmGetWindowAttribute(static_cast<HWND>(window), DWMWA_EXTENDED_FRAME_BOUNDS, &rect, sizeof rect)))
        return std::nullopt;
    return rectOf(rect);
}

std::uint32_t Win32DesktopWindows::style(WindowHandle window)
{
    return static_cast<std::uint32_t>(GetWindowLongW(static_cast<HWND>(window), GWL_STYLE));
}

QString Win32DesktopWindows::className(WindowHandle window)
{
    std::array<wchar_t, 257> name;
    const int length = GetClassNameW(static_cast<HWND>(window), name.data(), static_cast<int>(name.size()));
    return QString::fromWCharArray(name.data(), length);
}

bool Win32DesktopWindows::isHung(WindowHandle window)
{
    return IsHungAppWindow(static_cast<HWND>(window));
}

DisplayHandle Win32DesktopWindows::displayOf(WindowHandle window)
{
    return MonitorFromWindow(static_cast<HWND>(window), MONITOR_DEFAULTTONEAREST);
}

std::uint32_t Win32DesktopWindows::moveWindow(WindowHandle window, const QRect &rect)
{
    if (MoveWindow(static_cast<HWND>(window), rect.x(), rect.y(), rect.width(), rect.height(), TRUE))
        return 0;
    const DWORD error = GetLastError();
    return error != 0 ? error : ERROR_GEN_FAILURE;
}

void Win32DesktopWindows::showWindow(WindowHandle window, ShowWindowAs how)
{
    ShowWindow(static_cast<HWND>(window), static_cast<int>(how));
}

bool Win32DesktopWindows::bringToFront(WindowHandle window)
{
    return SetForegroundWindow(static_cast<HWND>(window));
}

} // namespace platform
