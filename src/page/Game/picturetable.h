#pragma once

#include <vector>

#include "page/engine/pagetable.h"

class DeviceState;

/// The items of the picture enhancement page, in list order, for the connected monitor: the motion function under the
/// model's own name.
std::vector<PanelSpec> picturePanels(const DeviceState &state);

inline constexpr char kAdaptiveSyncItem[] = "Adaptive-Sync";
inline constexpr char kGameRushItem[] = "Game Rush";
