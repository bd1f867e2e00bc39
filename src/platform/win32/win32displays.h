#pragma once

#include "platform/displays.h"

namespace platform {

/// user32's display enumeration, the registry, and the toolkit's screens.
class Win32Displays final : public Displays
{
public:
    std::optional<std::vector<DisplayPath>> activePaths() override;
    void enumerate(const std::function<bool(DisplayHandle)> &visit) override;
    std::optional<DisplayInfo> info(DisplayHandle display) override;
    std::optional<DisplayDevice> adapter(std::uint32_t index) override;
    std::optional<DisplayDevice> monitor(const QString &adapterName, std::uint32_t index) override;
    std::optional<RegistryValue> localMachineValue(const QString &keyPath, const QString &valueName) override;
    std::vector<Screen> screens() override;
    std::optional<WorkArea> workArea() override;
    bool animatesControls() override;
};

} // namespace platform
