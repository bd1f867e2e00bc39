#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/displays.h"

namespace platform {

/// A monitor that answers DDC/CI requests; null when none could be fetched.
using PhysicalMonitorHandle = void *;

/// One physical-monitor record, laid out as the platform's PHYSICAL_MONITOR.
struct PhysicalMonitor
{
    PhysicalMonitorHandle handle = nullptr;
    char16_t description[128] = {}; ///< as the platform fills it; not used for labels
};

/// The platform's monitor-configuration calls (dxva2). getFeature and setFeature may be called from any one thread at
/// a time; the others on the interface thread.
class MonitorConfiguration
{
public:
    virtual ~MonitorConfiguration() = default;

    /// GetNumberOfPhysicalMonitorsFromHMONITOR; nothing when the call fails.
    virtual std::optional<std::uint32_t> count(DisplayHandle display) = 0;

    /// GetPhysicalMonitorsFromHMONITOR into exactly monitors.size() records; false when the call fails.
    virtual bool fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors) = 0;

    /// DestroyPhysicalMonitors; null handles are allowed.
    virtual void destroy(std::span<PhysicalMonitor> monitors) = 0;

    /// GetVCPFeatureAndVCPFeatureReply without the code type: false when the monitor did not answer.
    virtual bool getFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t &current,
                            std::uint32_t &maximum) = 0;

    /// SetVCPFeature: false when the monitor did not take the value.
    virtual bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) = 0;

    /// The calling thread's last error number, as the failed call left it (GetLastError).
    virtual std::uint32_t lastError() = 0;
};

} // namespace platform
