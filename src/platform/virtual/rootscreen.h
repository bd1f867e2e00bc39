#pragma once

#include <memory>
#include <optional>
#include <span>

#include "platform/displays.h"
#include "platform/screencapture.h"

namespace platform {

/// The work area of the real screen on which the simulated desk is shown; nothing where there is none, or it cannot be
/// asked.
std::optional<WorkArea> rootWorkArea();

/// Reads what that screen shows. Keeps its way to it, once it has found one.
class RootPixels
{
public:
    RootPixels();
    ~RootPixels();

    /// As ScreenCapture::copy.
    bool copy(std::span<const ScreenPart> parts);

private:
    struct Way;
    std::unique_ptr<Way> m_way;
};

} // namespace platform
