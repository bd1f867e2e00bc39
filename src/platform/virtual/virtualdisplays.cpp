#include "platform/virtual/virtualdisplays.h"

#include "platform/virtual/rootscreen.h"
#include "virtualdesk/virtualdesk.h"

namespace platform {

std::optional<std::vector<DisplayPath>> VirtualDisplays::activePaths()
{
    auto paths = m_desk.displays().paths();
    if (paths.empty()) // the system has always a path while it shows anything
        return std::nullopt;
    return paths;
}

void VirtualDisplays::enumerate(const std::function<bool(DisplayHandle)> &visit)
{
    const auto displays = m_desk.displays().enumerate();
    for (const DisplayHandle display : displays) {
        if (!visit(display))
            return;
    }
}

std::optional<DisplayInfo> VirtualDisplays::info(DisplayHandle display)
{
    return m_desk.displays().info(display);
}

std::optional<DisplayDevice> VirtualDisplays::adapter(std::uint32_t index)
{
    return m_desk.displays().adapter(index);
}

std::optional<DisplayDevice> VirtualDisplays::monitor(const QString &adapterName, std::uint32_t index)
{
    return m_desk.displays().monitorDevice(adapterName, index);
}

std::optional<RegistryValue> VirtualDisplays::localMachineValue(const QString &keyPath, const QString &valueName)
{
    return m_desk.displays().registryValue(keyPath, valueName);
}

std::vector<Screen> VirtualDisplays::screens()
{
    return m_desk.displays().screens();
}

std::optional<WorkArea> VirtualDisplays::workArea()
{
    return m_desk.workArea ? m_desk.workArea : rootWorkArea();
}

bool VirtualDisplays::animatesControls()
{
    return m_desk.animatesControls;
}

std::optional<std::uint32_t> VirtualMonitors::count(DisplayHandle display)
{
    const auto monitors = m_desk.displays().monitorsOf(display);
    if (!monitors)
        return std::nullopt;
    return static_cast<std::uint32_t>(monitors->size());
}

bool VirtualMonitors::fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors)
{
    const auto found = m_desk.displays().monitorsOf(display);
    if (!found || monitors.empty() || monitors.size() > found->size() || !m_desk.displays().isFetchable(display))
        return false;
    for (std::size_t i = 0; i < monitors.size(); ++i) {
        monitors[i] = {};
        monitors[i].handle = m_desk.handles().open((*found)[i]);
        std::u16string_view(u"Generic PnP Monitor").copy(monitors[i].description, 127);
    }
    return true;
}

void VirtualMonitors::destroy(std::span<PhysicalMonitor> monitors)
{
    for (const PhysicalMonitor &monitor : monitors)
        m_desk.handles().close(monitor.handle);
}

VcpReply VirtualMonitors::getFeature(PhysicalMonitorHandle monitor, std::uint8_t code)
{
    virtualdesk::SimulatedMonitor *target = m_desk.monitorOfHandle(monitor);
    if (target == nullptr)
        return {false, 0, 0, virtualdesk::kErrorInvalidHandle};
    const virtualdesk::Reply reply = target->read(code);
    if (!reply.ok())
        return {false, 0, 0, reply.error};
    return {true, reply.current, reply.maximum, 0};
}

bool VirtualMonitors::setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value)
{
    virtualdesk::SimulatedMonitor *target = m_desk.monitorOfHandle(monitor);
    return target != nullptr && target->write(code, value).ok();
}

} // namespace platform
