#pragma once

#include <span>

#include "page/engine/lockrules.h"
#include "page/engine/pagetable.h"

/// The groups of the lighting page, in list order. Which monitors have them is the entry's to say, that leads here.
std::span<const PanelSpec> lightPanels();

/// What works in some modes only.
std::span<const LockRule> lightLocks();

/// The parts that the page builds itself.
inline constexpr char kLightPicturePart[] = "lightPicture";
inline constexpr char kOwnColorPart[] = "ownColor";
inline constexpr char kRhythmNotePart[] = "rhythmNote";
inline constexpr char kTemperatureEndsPart[] = "temperatureEnds";

inline constexpr char kLightModePanel[] = "Lighting";

// Options that more depends on.
inline constexpr int kEffectMode = 2;
inline constexpr int kGlobalRhythmMode = 3;
inline constexpr int kZoneRhythmMode = 4;
inline constexpr int kEyeCareMode = 5;
inline constexpr int kOwnLightColor = 8;
