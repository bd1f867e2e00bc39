#pragma once

#include <QtGui/qwindowdefs.h>

#include "platform/nativemessage.h"

namespace platform {

/// What the system tells a window of ours about its surroundings. It arrives at the window's nativeEvent as messages of
/// kNativeEventType: kMessageDeviceChange, and after registerSystem also kMessageSessionChange and
/// kMessagePowerBroadcast with kPowerSettingChange. All calls are made on the interface thread.
class DeviceNotifications
{
public:
    virtual ~DeviceNotifications() = default;

    /// Asks for arrivals and removals of one interface class (RegisterDeviceNotificationW); null when refused.
    virtual void *registerInterface(WId window, const Guid &interfaceClass) = 0;

    /// Ends what registerInterface began; null is ignored.
    virtual void unregister(void *registration) = 0;

    /// Asks for the session being locked and unlocked (WTSRegisterSessionNotification) and for the console's display
    /// being switched off and on (RegisterPowerSettingNotification); what is refused stays silent. One window at a
    /// time.
    virtual void registerSystem(WId window) = 0;

    /// Ends what registerSystem began.
    virtual void unregisterSystem(WId window) = 0;
};

} // namespace platform
