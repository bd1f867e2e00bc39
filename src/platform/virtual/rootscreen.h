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

/// Reads what that screen shows. Looks for its way there when it is first asked, and anew when it has lost it.
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
