#pragma once

#include "platform/monitorconfiguration.h"

namespace platform {

/// dxva2's monitor-configuration calls.
class Win32MonitorConfiguration final : public MonitorConfiguration
{
public:
    std::optional<std::uint32_t> count(DisplayHandle display) override;
    bool fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors) override;
    void destroy(std::span<PhysicalMonitor> monitors) override;
    VcpReply getFeature(PhysicalMonitorHandle monitor, std::uint8_t code) override;
    bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) override;
};

} // namespace platform
