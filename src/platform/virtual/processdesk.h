#pragma once

#include <memory>

#include "platform/desk.h"

namespace platform {

/// The simulated desk of a process, set up by the environment, in real time. Its window opens beside the main window
/// unless QUORVEL_DESK_WINDOW is 0.
std::unique_ptr<Desk> createVirtualDesk();

} // namespace platform
