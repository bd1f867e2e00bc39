#include "platform/win32/win32monitorconfiguration.h"

#include <cstddef>

#include <windows.h>

#include <physicalmonitorenumerationapi.h>

// mingw-w64 brings the import library of these two calls, but up to version 10 not their header.
#if __has_include(<lowlevelmonitorconfigurationapi.h>)
#include <lowlevelmonitorconfigurationapi.h>
#else
extern "C" {
using MC_VCP_CODE_TYPE = int;
BOOL WINAPI GetVCPFeatureAndVCPFeatureReply(HANDLE monitor, BYTE code, MC_VCP_CODE_TYPE *type, DWORD *current,
                                            DWORD *maximum);
BOOL WINAPI SetVCPFeature(HANDLE monitor, BYTE code, DWORD value);
}
#endif

namespace platform {

static_assert(sizeof(PhysicalMonitor) == sizeof(PHYSICAL_MONITOR));
static_assert(offsetof(PhysicalMonitor, handle) == offsetof(PHYSICAL_MONITOR, hPhysicalMonitor));
static_assert(offsetof(PhysicalMonitor, description) == offsetof(PHYSICAL_MONITOR, szPhysicalMonitorDescription));

namespace {

PHYSICAL_MONITOR *records(std::span<PhysicalMonitor> monitors)
{
    return reinterpret_cast<PHYSICAL_MONITOR *>(monitors.data());
}

} // namespace

std::optional<std::uint32_t> Win32MonitorConfiguration::count(DisplayHandle display)
{
    DWORD count = 0;
    if (!GetNumberOfPhysicalMonitorsFromHMONITOR(static_cast<HMONITOR>(display), &count))
        return std::nullopt;
    return count;
}

bool Win32MonitorConfiguration::fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors)
{
    return GetPhysicalMonitorsFromHMONITOR(static_cast<HMONITOR>(display), static_cast<DWORD>(monitors.size()),
                                           records(monitors));
}

void Win32MonitorConfiguration::destroy(std::span<PhysicalMonitor> monitors)
{
    // One at a time: a handle that is refused must not keep the others from being released.
    for (PhysicalMonitor &monitor : monitors)
        DestroyPhysicalMonitors(1, records(std::span(&monitor, 1)));
}

VcpReply Win32MonitorConfiguration::getFeature(PhysicalMonitorHandle monitor, std::uint8_t code)
{
    DWORD current = 0;
    DWORD maximum = 0;
    const bool answered = GetVCPFeatureAndVCPFeatureReply(monitor, code, nullptr, &current, &maximum);
    // At once: whatever comes between may clear it, such as the making of a text.
    const DWORD error = answered ? ERROR_SUCCESS : GetLastError();
    return {answered, current, maximum, error};
}

bool Win32MonitorConfiguration::setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value)
{
    return SetVCPFeature(monitor, code, value);
}

} // namespace platform
