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
    bool getFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t &current,
                    std::uint32_t &maximum) override;
    bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) override;
    std::uint32_t lastError() override;
};

} // namespace platform
