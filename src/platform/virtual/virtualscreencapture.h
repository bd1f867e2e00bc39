#pragma once

#include "platform/screencapture.h"
#include "platform/virtual/rootscreen.h"

namespace virtualdesk {
class SimulatedScreen;
}

namespace platform {

/// The picture that lies on the simulated desk, or the real screen on which the desk is shown.
class VirtualScreenCapture final : public ScreenCapture
{
public:
    explicit VirtualScreenCapture(virtualdesk::SimulatedScreen &screen) : m_screen(screen) {}

    bool copy(std::span<const ScreenPart> parts) override;

private:
    virtualdesk::SimulatedScreen &m_screen;
    RootPixels m_root;
};

} // namespace platform
