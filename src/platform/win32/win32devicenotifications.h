#pragma once

#include "platform/devicenotifications.h"

namespace platform {

/// user32's device-change broadcasts to a window.
class Win32DeviceNotifications final : public DeviceNotifications
{
public:
    void *registerInterface(WId window, const Guid &interfaceClass) override;
    void unregister(void *registration) override;
};

} // namespace platform
