#pragma once

#include "platform/audiocapture.h"
#include "platform/clock.h"
#include "platform/desktopwindows.h"
#include "platform/devicenotifications.h"
#include "platform/displays.h"
#include "platform/files.h"
#include "platform/foreground.h"
#include "platform/globalkeys.h"
#include "platform/hid.h"
#include "platform/monitorconfiguration.h"
#include "platform/presence.h"
#include "platform/process.h"
#include "platform/screencapture.h"
#include "platform/startup.h"

namespace platform {

/// Everything outside the process. Each concern is one small interface in the platform's own terms; what is done with
/// the answers is decided above.
class Desk
{
public:
    virtual ~Desk() = default;

    virtual Displays &displays() = 0;
    virtual MonitorConfiguration &monitors() = 0;
    virtual Process &process() = 0;
    virtual StartUp &startUp() = 0;
    virtual DeviceNotifications &deviceNotifications() = 0;
    virtual GlobalKeys &globalKeys() = 0;
    virtual Foreground &foreground() = 0;
    virtual Presence &presence() = 0;
    virtual DesktopWindows &windows() = 0;
    virtual Hid &hid() = 0;
    virtual AudioCapture &audio() = 0;
    virtual ScreenCapture &screen() = 0;
    virtual Clock &clock() = 0;
    virtual Files &files() = 0;

    /// Called once when the main window is shown: a desk that has something of its own to show opens it now.
    virtual void mainWindowShown() {}
};

/// The desk that the process works on. The composition root (or a test) installs it before anything else runs.
Desk &desk();

/// Makes a desk the current one; null takes it away. The caller keeps ownership and outlives every use.
void installDesk(Desk *desk);

} // namespace platform
