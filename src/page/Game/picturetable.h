#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The items of the picture enhancement page, in list order, for all models.
std::span<const PanelSpec> picturePanels();

inline constexpr char kAdaptiveSyncItem[] = "Adaptive-Sync";
inline constexpr char kGameRushItem[] = "Game Rush";
