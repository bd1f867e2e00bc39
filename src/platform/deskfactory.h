#pragma once

#include <memory>

#include "platform/desk.h"

namespace platform {

/// The desk this process runs on: the real one on Windows, the simulated one elsewhere and, in a process without
/// administrator rights, wherever the environment says QUORVEL_DESK=virtual.
std::unique_ptr<Desk> createDesk();

} // namespace platform
