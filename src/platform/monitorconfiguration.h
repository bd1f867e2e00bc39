#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/displays.h"

namespace platform {

/// A monitor that answers DDC/CI requests. Every value may be a handle, null as well: it is the first that some systems
/// give.
using PhysicalMonitorHandle = void *;

/// One physical-monitor record, laid out as the platform's PHYSICAL_MONITOR.
struct PhysicalMonitor
{
    PhysicalMonitorHandle handle = nullptr;
    char16_t description[128] = {}; ///< as the platform fills it; not used for labels
};

/// What became of a read request; every number is 0 unless it is told.
struct VcpReply
{
    bool answered = false;
    std::uint32_t current = 0;
    std::uint32_t maximum = 0;
    std::uint32_t error = 0; ///< the system's number of why there is no answer (GetLastError)
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

    /// DestroyPhysicalMonitors; records that fetch filled only.
    virtual void destroy(std::span<PhysicalMonitor> monitors) = 0;

    /// GetVCPFeatureAndVCPFeatureReply without the code type.
    virtual VcpReply getFeature(PhysicalMonitorHandle monitor, std::uint8_t code) = 0;

    /// SetVCPFeature: false when the monitor did not take the value.
    virtual bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) = 0;
};

} // namespace platform
