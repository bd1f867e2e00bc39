#pragma once

#include <memory>

#include "platform/desk.h"

namespace platform {

/// The desk of the real machine: every interface of it is a flat translation to the calls of Windows.
std::unique_ptr<Desk> createWin32Desk();

} // namespace platform
