#pragma once

#include <QtGui/qwindowdefs.h>

#include "platform/nativemessage.h"

namespace platform {

/// Device-change broadcasts to a window of ours. They arrive at the window's nativeEvent as kNativeEventType messages
/// with kMessageDeviceChange. All calls are made on the interface thread.
class DeviceNotifications
{
public:
    virtual ~DeviceNotifications() = default;

    /// Asks for arrivals and removals of one interface class (RegisterDeviceNotificationW); null when refused.
    virtual void *registerInterface(WId window, const Guid &interfaceClass) = 0;

    /// Ends what registerInterface began; null is ignored.
    virtual void unregister(void *registration) = 0;
};

} // namespace platform
