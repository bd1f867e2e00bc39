#pragma once

#include "platform/displays.h"
#include "platform/monitorconfiguration.h"

namespace virtualdesk {
class VirtualDesk;
}

namespace platform {

/// The display set-up of the simulated desk.
class VirtualDisplays final : public Displays
{
public:
    explicit VirtualDisplays(virtualdesk::VirtualDesk &desk) : m_desk(desk) {}

    std::optional<std::vector<DisplayPath>> activePaths() override;
    void enumerate(const std::function<bool(DisplayHandle)> &visit) override;
    std::optional<DisplayInfo> info(DisplayHandle display) override;
    std::optional<DisplayDevice> adapter(std::uint32_t index) override;
    std::optional<DisplayDevice> monitor(const QString &adapterName, std::uint32_t index) override;
    std::optional<RegistryValue> localMachineValue(const QString &keyPath, const QString &valueName) override;
    std::vector<Screen> screens() override;
    std::optional<WorkArea> workArea() override;
    bool animatesControls() override;

private:
    virtualdesk::VirtualDesk &m_desk;
};

/// The VCP calls, answered by the simulated monitors.
class VirtualMonitors final : public MonitorConfiguration
{
public:
    explicit VirtualMonitors(virtualdesk::VirtualDesk &desk) : m_desk(desk) {}

    std::optional<std::uint32_t> count(DisplayHandle display) override;
    bool fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors) override;
    void destroy(std::span<PhysicalMonitor> monitors) override;
    VcpReply getFeature(PhysicalMonitorHandle monitor, std::uint8_t code) override;
    bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) override;

private:
    virtualdesk::VirtualDesk &m_desk;
};

} // namespace platform
