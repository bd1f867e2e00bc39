#pragma once

#include <span>

#include "page/engine/pagetable.h"

/// The custom half of the scene-mode page, section by section.
std::span<const Section> sceneSections();

/// The names of the sliders that follow the colour-temperature option.
inline constexpr char kNightViewSlider[] = "Night View C.T";
inline constexpr const char *kUserColourSliders[] = {"UserR", "UserG", "UserB"};

/// Red, green and blue of the three user colour presets.
inline constexpr Command kUserColours[3][3] = {
    {Command::User1Red, Command::User1Green, Command::User1Blue},
    {Command::User2Red, Command::User2Green, Command::User2Blue},
    {Command::User3Red, Command::User3Green, Command::User3Blue},
};

/// Values of the colour-temperature group that the page treats apart.
inline constexpr int kNightViewTemperature = 7;
inline constexpr int kFirstUserTemperature = 8; ///< "User1"; 9 and 10 are the other two

/// Which user preset, 1 to 3, a colour-temperature option is; 0 for the others.
int userSlot(int temperature);
