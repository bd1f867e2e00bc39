#pragma once

#include "page/engine/labels.h"

// What settings are for that several pages have.

inline constexpr char kMotionHelp[] =
    LABEL("Makes what moves look sharper. Close = off; Low to High and Ull-Level1 to 3 are stronger in turn.");
inline constexpr char kResponseHelp[] = LABEL(
    "Pixels change faster and motion smears less. Close = off, Topspeed = fastest, which may leave bright edges.");
inline constexpr char kDimmingHelp[] =
    LABEL("Dims the light behind dark parts, so that black is deeper. Close = off; the others are stronger in turn.");
inline constexpr char kColorHelp[] = LABEL("Makes colours stronger. 0 = off.");
inline constexpr char kContrastHelp[] = LABEL("Raises the contrast between light and dark parts. 0 = off.");
inline constexpr char kShadowHelp[] =
    LABEL("Makes dark parts lighter or darker, so that you see what is in the shadows.");
inline constexpr char kResolutionHelp[] =
    LABEL("Super Resolution: makes blurred or enlarged pictures look sharper. 0 = off.");
inline constexpr char kHaloHelp[] = LABEL("Reduces the glow around bright things on a dark ground.");
inline constexpr char kRangeHelp[] = LABEL(
    "Must match the computer's signal. RGB Auto = found out by itself, RGB Limit = 16 to 235, RGB Full = 0 to 255.");
inline constexpr char kGameRushHelp[] = LABEL(
    "Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.");
inline constexpr char kNightVisionHelp[] =
    LABEL("Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.");
inline constexpr char kAiDualModeHelp[] =
    LABEL("Lets the monitor switch between its two modes by itself. Close = off, Open = on.");

// When to switch them on, beside the picture of what they do.
inline constexpr char kGameRushWhen[] =
    LABEL("For games in which every moment counts. For films and work leave it off.");
inline constexpr char kAiDualModeWhen[] =
    LABEL("For a screen that is used for pictures and texts in turn. Leave it off while you judge colours.");
