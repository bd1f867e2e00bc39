#pragma once

#include "platform/devicenotifications.h"

namespace platform {

/// user32's device-change, session and power broadcasts to a window.
class Win32DeviceNotifications final : public DeviceNotifications
{
public:
    void *registerInterface(WId window, const Guid &interfaceClass) override;
    void unregister(void *registration) override;
    void registerSystem(WId window) override;
    void unregisterSystem(WId window) override;

private:
    void *m_powerSetting = nullptr;
};

} // namespace platform
