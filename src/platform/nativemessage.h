#pragma once

#include <cstdint>

namespace platform {

/// A native window message, laid out as the 64-bit MSG. Event type of the filters: "windows_generic_MSG".
struct NativeMessage
{
    void *window = nullptr;
    std::uint32_t message = 0;
    std::uint64_t wParam = 0;
    std::int64_t lParam = 0;
    std::uint32_t time = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
};
static_assert(sizeof(NativeMessage) == 48);

/// The event type under which native messages reach event filters and nativeEvent handlers.
inline constexpr const char *kNativeEventType = "windows_generic_MSG";

/// A 128-bit class identifier, laid out as the platform's GUID.
struct Guid
{
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::uint8_t data4[8] = {};
    bool operator==(const Guid &) const = default;
};
static_assert(sizeof(Guid) == 16);

inline constexpr std::uint32_t kMessageDeviceChange = 0x0219;  ///< WM_DEVICECHANGE
inline constexpr std::uint64_t kDeviceArrival = 0x8000;        ///< DBT_DEVICEARRIVAL
inline constexpr std::uint64_t kDeviceRemoveComplete = 0x8004; ///< DBT_DEVICEREMOVECOMPLETE
inline constexpr std::uint32_t kDeviceTypeInterface = 5;       ///< DBT_DEVTYP_DEVICEINTERFACE

inline constexpr std::uint32_t kMessageDisplayChange = 0x007E;  ///< WM_DISPLAYCHANGE
inline constexpr std::uint32_t kMessagePowerBroadcast = 0x0218; ///< WM_POWERBROADCAST
inline constexpr std::uint64_t kPowerResumeSuspend = 0x0007;    ///< PBT_APMRESUMESUSPEND: by the user
inline constexpr std::uint64_t kPowerResumeAutomatic = 0x0012;  ///< PBT_APMRESUMEAUTOMATIC: by whatever
inline constexpr std::uint64_t kPowerSettingChange = 0x8013;    ///< PBT_POWERSETTINGCHANGE, with a PowerSetting
inline constexpr std::uint32_t kMessageSessionChange = 0x02B1;  ///< WM_WTSSESSION_CHANGE
inline constexpr std::uint64_t kSessionLock = 0x0007;           ///< WTS_SESSION_LOCK
inline constexpr std::uint64_t kSessionUnlock = 0x0008;         ///< WTS_SESSION_UNLOCK

/// The power setting that tells whether the console's display is off (0), on (1) or dimmed (2).
inline constexpr Guid kConsoleDisplayState{
    0x6FE69556, 0x704A, 0x47A0, {0x8F, 0x24, 0xC2, 0x8D, 0x93, 0x6F, 0xDA, 0x47}};

/// What lParam points to behind kPowerSettingChange (POWERBROADCAST_SETTING), as far as a 32-bit value goes.
struct PowerSetting
{
    Guid setting;
    std::uint32_t length = 0; ///< of the data, in bytes
    std::uint32_t value = 0;
};
static_assert(sizeof(PowerSetting) == 24);

inline constexpr std::uint32_t kMessageHotKey = 0x0312; ///< WM_HOTKEY: lParam is virtual key << 16 | modifiers
inline constexpr std::uint32_t kModifierAlt = 1;        ///< MOD_ALT
inline constexpr std::uint32_t kModifierControl = 2;    ///< MOD_CONTROL
inline constexpr std::uint32_t kModifierShift = 4;      ///< MOD_SHIFT
inline constexpr std::uint32_t kModifierWin = 8;        ///< MOD_WIN

inline constexpr std::uint32_t kMessageQueryEndSession = 0x0011; ///< WM_QUERYENDSESSION: 0 would refuse
inline constexpr std::uint32_t kMessageEndSession = 0x0016;      ///< WM_ENDSESSION: wParam 0 when it goes on after all

/// The head of every device broadcast that lParam points to (DEV_BROADCAST_HDR).
struct DeviceBroadcast
{
    std::uint32_t size = 0;
    std::uint32_t deviceType = 0;
    std::uint32_t reserved = 0;
};

/// A device-interface broadcast up to its class (DEV_BROADCAST_DEVICEINTERFACE_W); the name follows.
struct DeviceInterfaceBroadcast
{
    DeviceBroadcast head;
    Guid interfaceClass;
};
static_assert(sizeof(DeviceInterfaceBroadcast) == 28);

} // namespace platform
