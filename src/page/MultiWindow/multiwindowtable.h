#pragma once

#include <span>

#include "page/engine/lockrules.h"

/// The one panel of the multi-window page.
std::span<const PanelSpec> multiWindowPanels();

/// What picture-in-picture alone has cannot be set without it.
std::span<const LockRule> multiWindowLocks();

// The options of the mode.
inline constexpr int kOneWindow = 0;
inline constexpr int kPictureInPicture = 1;
inline constexpr int kPictureByPicture = 2;
