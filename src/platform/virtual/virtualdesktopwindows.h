#pragma once

#include "platform/desktopwindows.h"
#include "virtualdesk/applicationwindows.h"

namespace platform {

/// The windows of the simulated desk's programs.
class VirtualDesktopWindows final : public DesktopWindows
{
public:
    explicit VirtualDesktopWindows(virtualdesk::ApplicationWindows &windows) : m_windows(windows) {}

    WindowHandle foregroundWindow() override { return m_windows.foregroundWindow(); }
    std::optional<QRect> windowRect(WindowHandle window) override { return m_windows.rect(window); }
    std::optional<QRect> visibleRect(WindowHandle window) override { return m_windows.visibleRect(window); }
    std::uint32_t style(WindowHandle window) override { return m_windows.style(window); }
    QString className(WindowHandle window) override { return m_windows.className(window); }
    bool isHung(WindowHandle window) override { return m_windows.isHung(window); }
    DisplayHandle displayOf(WindowHandle window) override { return m_windows.displayOf(window); }
    std::uint32_t moveWindow(WindowHandle window, const QRect &rect) override { return m_windows.move(window, rect); }

    void showWindow(WindowHandle window, ShowWindowAs how) override
    {
        using Shape = virtualdesk::ApplicationWindow::Shape;
        m_windows.show(window, how == ShowWindowAs::Maximised ? Shape::Maximised : Shape::Normal);
    }

    bool bringToFront(WindowHandle window) override { return m_windows.bringToFront(window); }

private:
    virtualdesk::ApplicationWindows &m_windows;
};

} // namespace platform
