#pragma once

#include <cstdint>
#include <vector>

#include <QtGui/qwindowdefs.h>

#include "platform/nativemessage.h"

namespace virtualdesk {

/// The interface class of monitors in device broadcasts.
inline constexpr platform::Guid kMonitorInterfaceClass{
    0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}};

/// The interface class of HID devices in device broadcasts.
inline constexpr platform::Guid kHidInterfaceClass{
    0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};

/// Hands a message to the application's native event filters and then, unless one took it, to the window whose native
/// handle it names: the way that every native message takes through the toolkit. True when somebody took it; result is
/// then the answer.
bool deliverNativeMessage(platform::NativeMessage message, qintptr *result = nullptr);

/// The windows that asked for device broadcasts. Interface thread only.
class DeviceRegistrations
{
public:
    /// Tokens are never null and never used twice.
    void *add(WId window, const platform::Guid &interfaceClass);
    /// False for a token that add did not give or that was removed before.
    bool remove(void *token);

    /// Sends a broadcast of one class (kDeviceArrival or kDeviceRemoveComplete) to every window registered for it.
    void broadcast(std::uint64_t event, const platform::Guid &interfaceClass) const;

    /// The windows that asked for messages about power, displays and the session; a 0 is none.
    void addSystem(WId window);
    void removeSystem(WId window);

    /// Sends a message of that kind to each of them.
    void tellSystem(std::uint32_t message, std::uint64_t wParam, const void *lParam = nullptr) const;

    std::size_t count() const { return m_registrations.size(); }

private:
    struct Registration
    {
        std::uintptr_t token;
        WId window;
        platform::Guid interfaceClass;
    };
    std::vector<Registration> m_registrations;
    std::vector<WId> m_systemWindows;
    std::uintptr_t m_nextToken = 0x7000;
};

} // namespace virtualdesk
