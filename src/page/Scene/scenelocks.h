#pragma once

#include <span>

#include "page/engine/lockrules.h"

/// What is locked when in the custom half of a scene mode.
std::span<const LockRule> sceneLocks();
