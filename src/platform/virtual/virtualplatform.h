#pragma once

#include <memory>

#include "platform/desk.h"

namespace virtualdesk {
class VirtualDesk;
}

namespace platform {

/// The platform's calls answered by a simulated desk. The desk and the clock outlive it. It shows no window.
class VirtualPlatform : public Desk
{
public:
    VirtualPlatform(virtualdesk::VirtualDesk &desk, Clock &clock);
    ~VirtualPlatform() override;

    Displays &displays() override;
    MonitorConfiguration &monitors() override;
    Process &process() override;
    StartUp &startUp() override;
    DeviceNotifications &deviceNotifications() override;
    GlobalKeys &globalKeys() override;
    Foreground &foreground() override;
    Presence &presence() override;
    DesktopWindows &windows() override;
    Hid &hid() override;
    AudioCapture &audio() override;
    ScreenCapture &screen() override;
    Clock &clock() override;
    Files &files() override;

    /// Starts the script's timed events.
    void mainWindowShown() override;

private:
    virtualdesk::VirtualDesk &m_desk;
    Clock &m_clock;
    std::unique_ptr<Displays> m_displays;
    std::unique_ptr<MonitorConfiguration> m_monitors;
    std::unique_ptr<Process> m_process;
    std::unique_ptr<StartUp> m_startUp;
    std::unique_ptr<DeviceNotifications> m_deviceNotifications;
    std::unique_ptr<GlobalKeys> m_globalKeys;
    std::unique_ptr<Foreground> m_foreground;
    std::unique_ptr<Presence> m_presence;
    std::unique_ptr<DesktopWindows> m_windows;
    std::unique_ptr<Hid> m_hid;
    std::unique_ptr<AudioCapture> m_audio;
    std::unique_ptr<ScreenCapture> m_screen;
    std::unique_ptr<Files> m_files;
};

} // namespace platform
