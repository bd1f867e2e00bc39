#include "platform/win32/win32desk.h"

#include "platform/systemclock.h"
#include "platform/win32/win32audio.h"
#include "platform/win32/win32desktopwindows.h"
#include "platform/win32/win32devicenotifications.h"
#include "platform/win32/win32displays.h"
#include "platform/win32/win32foreground.h"
#include "platform/win32/win32globalkeys.h"
#include "platform/win32/win32hid.h"
#include "platform/win32/win32monitorconfiguration.h"
#include "platform/win32/win32presence.h"
#include "platform/win32/win32process.h"
#include "platform/win32/win32screencapture.h"
#include "platform/win32/win32startup.h"

namespace platform {

namespace {

class Win32Desk final : public Desk
{
public:
    Displays &displays() override { return m_displays; }
    MonitorConfiguration &monitors() override { return m_monitors; }
    Process &process() override { return m_process; }
    StartUp &startUp() override { return m_startUp; }
    DeviceNotifications &deviceNotifications() override { return m_deviceNotifications; }
    GlobalKeys &globalKeys() override { return m_globalKeys; }
    Foreground &foreground() override { return m_foreground; }
    Presence &presence() override { return m_presence; }
    DesktopWindows &windows() override { return m_windows; }
    Hid &hid() override { return m_hid; }
    AudioCapture &audio() override { return m_audio; }
    ScreenCapture &screen() override { return m_screen; }
    Clock &clock() override { return m_clock; }
    Files &files() override { return *m_files; }

private:
    Win32Displays m_displays;
    Win32MonitorConfiguration m_monitors;
    Win32Process m_process;
    Win32StartUp m_startUp;
    Win32DeviceNotifications m_deviceNotifications;
    Win32GlobalKeys m_globalKeys;
    Win32Foreground m_foreground;
    Win32Presence m_presence;
    Win32DesktopWindows m_windows;
    Win32Hid m_hid;
    Win32Audio m_audio;
    Win32ScreenCapture m_screen;
    SystemClock m_clock;
    std::unique_ptr<Files> m_files = createSystemFiles();
};

} // namespace

std::unique_ptr<Desk> createWin32Desk()
{
    return std::make_unique<Win32Desk>();
}

} // namespace platform
