#pragma once

#include <cstdint>
#include <optional>

#include <QRect>
#include <QString>

#include "platform/displays.h"
#include "platform/foreground.h"

namespace platform {

// Bits of a window's style (WS_...).
inline constexpr std::uint32_t kStyleMaximised = 0x01000000;
inline constexpr std::uint32_t kStyleMinimised = 0x20000000;
inline constexpr std::uint32_t kStyleVisible = 0x10000000;
inline constexpr std::uint32_t kStyleSizable = 0x00040000; ///< WS_THICKFRAME
inline constexpr std::uint32_t kStyleCaption = 0x00C00000; ///< both bits: a title bar

/// What is done with a window's size, SW_...
enum class ShowWindowAs { Maximised = 3, Restored = 9 };

/// The windows of all programs: where they are, and moving them. Rectangles are in pixels of the desktop. All calls are
/// made on the interface thread; those that move one wait for the program that it belongs to.
class DesktopWindows
{
public:
    virtual ~DesktopWindows() = default;

    /// GetForegroundWindow; null while none is in front.
    virtual WindowHandle foregroundWindow() = 0;

    /// GetWindowRect: with the part of the frame that cannot be seen. Nothing for a window that is gone.
    virtual std::optional<QRect> windowRect(WindowHandle window) = 0;

    /// DwmGetWindowAttribute, DWMWA_EXTENDED_FRAME_BOUNDS: without that part. Nothing where the system does not tell.
    virtual std::optional<QRect> visibleRect(WindowHandle window) = 0;

    /// GetWindowLongW, GWL_STYLE: kStyle... and other bits; 0 for a window that is gone.
    virtual std::uint32_t style(WindowHandle window) = 0;

    /// GetClassNameW, up to 256 characters.
    virtual QString className(WindowHandle window) = 0;

    /// IsHungAppWindow.
    virtual bool isHung(WindowHandle window) = 0;

    /// MonitorFromWindow: the display that most of it is on, or the nearest.
    virtual DisplayHandle displayOf(WindowHandle window) = 0;

    /// MoveWindow, with repainting: 0, or the system's error number, kErrorAccessDenied where the
    /// window's program has more rights.
    virtual std::uint32_t moveWindow(WindowHandle window, const QRect &rect) = 0;

    /// ShowWindow.
    virtual void showWindow(WindowHandle window, ShowWindowAs how) = 0;

    /// SetForegroundWindow; false when the system refuses it.
    virtual bool bringToFront(WindowHandle window) = 0;
};

} // namespace platform
