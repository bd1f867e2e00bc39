#pragma once

#include "platform/desktopwindows.h"

namespace platform {

/// user32's windows, and what the desktop's compositor tells of their frames.
class Win32DesktopWindows final : public DesktopWindows
{
public:
    WindowHandle foregroundWindow() override;
    std::optional<QRect> windowRect(WindowHandle window) override;
    std::optional<QRect> visibleRect(WindowHandle window) override;
    std::uint32_t style(WindowHandle window) override;
    QString className(WindowHandle window) override;
    bool isHung(WindowHandle window) override;
    DisplayHandle displayOf(WindowHandle window) override;
    std::uint32_t moveWindow(WindowHandle window, const QRect &rect) override;
    void showWindow(WindowHandle window, ShowWindowAs how) override;
    bool bringToFront(WindowHandle window) override;
};

} // namespace platform
