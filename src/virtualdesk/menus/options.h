#pragma once

#include "virtualdesk/marked.h"
#include "virtualdesk/osdfunctions.h"

// Choices that several menus offer with the same values.
namespace virtualdesk::menus {

inline constexpr OsdOption kSwitch[] = {{0, NAME("Close")}, {1, NAME("Open")}};
inline constexpr OsdOption kSize[] = {{0, NAME("Small")}, {1, NAME("Medium")}, {2, NAME("Large")}};
inline constexpr OsdOption kCorner[] = {
    {0, NAME("Top Left")}, {1, NAME("Top Right")}, {2, NAME("Bottom Left")}, {3, NAME("Bottom Right")}};
inline constexpr OsdOption kColor[] = {{0, NAME("Red")},  {1, NAME("Yellow")}, {2, NAME("Green")}, {3, NAME("Cyan")},
                                       {4, NAME("Blue")}, {5, NAME("Purple")}, {6, NAME("White")}, {7, NAME("Auto")}};
inline constexpr OsdOption kFiveLevels[] = {
    {0, NAME("Level1")}, {1, NAME("Level2")}, {2, NAME("Level3")}, {3, NAME("Level4")}, {4, NAME("Level5")}};

} // namespace virtualdesk::menus
