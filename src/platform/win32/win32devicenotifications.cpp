#include "platform/win32/win32devicenotifications.h"

#include <bit>
#include <cstddef>
#include <utility>

#include <windows.h>

#include <dbt.h>
#include <wtsapi32.h>

namespace platform {

// What the filters and handlers above read is the platform's own memory: the layouts must be the same.
static_assert(sizeof(NativeMessage) == sizeof(MSG));
static_assert(offsetof(NativeMessage, window) == offsetof(MSG, hwnd));
static_assert(offsetof(NativeMessage, message) == offsetof(MSG, message));
static_assert(offsetof(NativeMessage, wParam) == offsetof(MSG, wParam));
static_assert(offsetof(NativeMessage, lParam) == offsetof(MSG, lParam));
static_assert(offsetof(NativeMessage, time) == offsetof(MSG, time));
static_assert(offsetof(NativeMessage, x) == offsetof(MSG, pt.x));
static_assert(offsetof(NativeMessage, y) == offsetof(MSG, pt.y));

static_assert(sizeof(Guid) == sizeof(GUID));
static_assert(offsetof(Guid, data1) == offsetof(GUID, Data1));
static_assert(offsetof(Guid, data2) == offsetof(GUID, Data2));
static_assert(offsetof(Guid, data3) == offsetof(GUID, Data3));
static_assert(offsetof(Guid, data4) == offsetof(GUID, Data4));

static_assert(sizeof(DeviceBroadcast) == sizeof(DEV_BROADCAST_HDR));
static_assert(offsetof(DeviceBroadcast, size) == offsetof(DEV_BROADCAST_HDR, dbch_size));
static_assert(offsetof(DeviceBroadcast, deviceType) == offsetof(DEV_BROADCAST_HDR, dbch_devicetype));
static_assert(sizeof(DeviceInterfaceBroadcast) == offsetof(DEV_BROADCAST_DEVICEINTERFACE_W, dbcc_name));
static_assert(offsetof(DeviceInterfaceBroadcast, interfaceClass) ==
              offsetof(DEV_BROADCAST_DEVICEINTERFACE_W, dbcc_classguid));

static_assert(kMessageDisplayChange == WM_DISPLAYCHANGE && kMessagePowerBroadcast == WM_POWERBROADCAST);
static_assert(kPowerResumeSuspend == PBT_APMRESUMESUSPEND && kPowerResumeAutomatic == PBT_APMRESUMEAUTOMATIC);
static_assert(kPowerSettingChange == PBT_POWERSETTINGCHANGE && kMessageSessionChange == WM_WTSSESSION_CHANGE);
static_assert(kMessageQueryEndSession == WM_QUERYENDSESSION && kMessageEndSession == WM_ENDSESSION);
static_assert(kSessionLock == WTS_SESSION_LOCK);
static_assert(kSessionUnlock == WTS_SESSION_UNLOCK);
static_assert(offsetof(PowerSetting, setting) == offsetof(POWERBROADCAST_SETTING, PowerSetting));
static_assert(offsetof(PowerSetting, length) == offsetof(POWERBROADCAST_SETTING, DataLength));
static_assert(offsetof(PowerSetting, value) == offsetof(POWERBROADCAST_SETTING, Data));

static_assert(kMessageDeviceChange == WM_DEVICECHANGE);
static_assert(kDeviceArrival == DBT_DEVICEARRIVAL);
static_assert(kDeviceRemoveComplete == DBT_DEVICEREMOVECOMPLETE);
static_assert(kDeviceTypeInterface == DBT_DEVTYP_DEVICEINTERFACE);

void *Win32DeviceNotifications::registerInterface(WId window, const Guid &interfaceClass)
{
    DEV_BROADCAST_DEVICEINTERFACE_W filter = {};
    filter.dbcc_size = sizeof(filter);
    filter.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    filter.dbcc_classguid = std::bit_cast<GUID>(interfaceClass);
    return RegisterDeviceNotificationW(reinterpret_cast<HWND>(window), &filter, DEVICE_NOTIFY_WINDOW_HANDLE);
}

void Win32DeviceNotifications::unregister(void *registration)
{
    if (registration)
        UnregisterDeviceNotification(registration);
}

void Win32DeviceNotifications::registerSystem(WId window)
{
    const auto handle = reinterpret_cast<HWND>(window);
    WTSRegisterSessionNotification(handle, NOTIFY_FOR_THIS_SESSION);
    const GUID displayState = std::bit_cast<GUID>(kConsoleDisplayState);
    m_powerSetting = RegisterPowerSettingNotification(handle, &displayState, DEVICE_NOTIFY_WINDOW_HANDLE);
}

void Win32DeviceNotifications::unregisterSystem(WId window)
{
    WTSUnRegisterSessionNotification(reinterpret_cast<HWND>(window));
    if (m_powerSetting)
        UnregisterPowerSettingNotification(std::exchange(m_powerSetting, nullptr));
}

} // namespace platform
