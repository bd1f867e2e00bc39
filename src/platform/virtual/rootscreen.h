#pragma once

#include <optional>

#include "platform/displays.h"

namespace platform {

/// The work area of the real screen on which the simulated desk is shown; nothing where there is none, or it cannot be
/// asked.
std::optional<WorkArea> rootWorkArea();

} // namespace platform
