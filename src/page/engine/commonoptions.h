#pragma once

#include <array>

#include "page/engine/labels.h"
#include "page/engine/pagetable.h"

// Options that several pages offer with the same values.

// Of options that take away what the others draw.
inline constexpr char kNothingDrawnWords[] = LABEL("Nothing is drawn over the picture.");

// The halves of a switch, as those of kSwitchOptions.
inline constexpr Option kCloseOpen[] = {{LABEL("Close"), 0}, {LABEL("Open"), 1}};

inline constexpr Option kGrayResponseOptions[] = {
    {LABEL("Close"), 0, LABEL("Pixels change as fast as the panel does by itself. Nothing is driven harder.")},
    {LABEL("Level1"), 1, LABEL("A little faster, without side effects.")},
    {LABEL("Level2"), 2, LABEL("Faster: less smear behind what moves.")},
    {LABEL("Level3"), 3, LABEL("Fast, for games. Light edges may be seen on some grey tones.")},
    {LABEL("Topspeed"), 4, LABEL("As fast as it goes. Bright rims may follow what moves.")}};

// The monitor numbers these from 2: 0 and 1 belong to other models.
inline constexpr Option kMotionOptions[] = {
    {LABEL("Close"), 2, LABEL("Pictures are shown as they come.")},
    {LABEL("Low"), 3, LABEL("What moves looks a little sharper. Good for films.")},
    {LABEL("Medium"), 4, LABEL("What moves looks clearly sharper. Good for sport.")},
    {LABEL("High"), 5, LABEL("Sharp movement for games.")},
    {LABEL("Ull-Level1"), 6, LABEL("Sharp movement with a short delay, for fast games.")},
    {LABEL("Ull-Level2"), 7, LABEL("Sharper still, with a short delay.")},
    {LABEL("Ull-Level3"), 8, LABEL("The sharpest movement, for the fastest games.")}};

/// The options of local dimming, which the monitor numbers from 2 as well; pages have names of their own for the
/// strongest, a source text.
constexpr std::array<Option, 5> dimmingOptions(const char *strongest)
{
    return {{{LABEL("Close"), 2, LABEL("The light behind the picture is even. Best for text.")},
             {LABEL("Low"), 3, LABEL("Dark parts become a little darker.")},
             {LABEL("Smooth"), 4, LABEL("Dims gently, so that changes are hardly noticed.")},
             {LABEL("Medium"), 5, LABEL("Darker black, for films and games.")},
             {strongest, 6, LABEL("The deepest black. A glow may show around bright things.")}}};
}

inline constexpr Option kOutputRangeOptions[] = {
    {LABEL("RGB Auto"), 0, LABEL("The monitor finds out which range the computer sends.")},
    {LABEL("RGB Limit"), 1, LABEL("For players and consoles that send 16 to 235. With a computer black looks grey.")},
    {LABEL("RGB Full"), 2, LABEL("For computers, which send 0 to 255.")}};

inline constexpr Option kNightVisionOptions[] = {
    {LABEL("Close"), 0, LABEL("Dark places stay dark.")},
    {LABEL("Level1"), 1, LABEL("Dark places are always a little brighter.")},
    {LABEL("Level2"), 2, LABEL("Dark places are always much brighter.")},
    {LABEL("Auto-L1"), 3, LABEL("Dark scenes become a little brighter, bright ones stay as they are.")},
    {LABEL("Auto-L2"), 4, LABEL("Dark scenes become much brighter, bright ones stay as they are.")}};

inline constexpr Option kFiveLevels[] = {
    {LABEL("Level1"), 0}, {LABEL("Level2"), 1}, {LABEL("Level3"), 2}, {LABEL("Level4"), 3}, {LABEL("Level5"), 4}};

// A corner of the screen, and when to take which.
inline constexpr char kCornerHelp[] = LABEL("Take the corner in which nothing stands that you need.");
inline constexpr Option kCornerOptions[] = {
    {LABEL("Top Left"), 0}, {LABEL("Top Right"), 1}, {LABEL("Bottom Left"), 2}, {LABEL("Bottom Right"), 3}};
