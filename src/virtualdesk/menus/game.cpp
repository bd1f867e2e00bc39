// What a game is helped with.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"
#include "virtualdesk/monitormodel.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kShape[] = {{1, NAME("Cross")}, {2, NAME("Open cross")}, {3, NAME("Dotted cross")},
                                {4, NAME("Ring")},  {5, NAME("Caret")},      {6, NAME("Dot")}};
constexpr OsdOption kHeight[] = {
    {0, NAME("Top")}, {1, NAME("Middle+")}, {2, NAME("Middle")}, {3, NAME("Middle-")}, {4, NAME("Bottom")}};
constexpr OsdOption kCountUp[] = {{1, NAME("15 min")}, {2, NAME("30 min")}, {3, NAME("60 min")}, {4, NAME("90 min")}};
constexpr OsdOption kCountDown[] = {{1, NAME("30 min")}, {2, NAME("40 min")}, {3, NAME("50 min")}, {4, NAME("60 min")}};
constexpr OsdOption kZoom[] = {{0, NAME("x1.5")}, {1, NAME("x2")}, {2, NAME("x4")}};
constexpr OsdOption kStrength[] = {{0, NAME("Low")}, {1, NAME("Medium")}, {2, NAME("High")}};

constexpr OsdFunction kGameMenu[] = {
    {0x3D, NAME("Game Crosshair"), 0, 1, kSwitch, GameFunctions},
    {0x34, NAME("Crosshair Shape"), 1, 6, kShape, GameFunctions, 0x3D},
    {0x32, NAME("Crosshair Color"), 0, 7, kColor, GameFunctions},
    {0xFA, NAME("Crosshair Place"), 2, 4, kHeight, GameFunctions},
    {0x39, NAME("Dynamic Crosshair"), 0, 1, kSwitch, GameFunctions},
    {0x38, NAME("Dynamic Crosshair Color"), 7, 7, kColor, GameFunctions},
    {0x3A, NAME("Dynamic Crosshair Size"), 1, 2, kSize, GameFunctions},
    {0x63, NAME("HawkEye Vision"), 0, 1, kSwitch, GameFunctions},
    {0x4D, NAME("HawkEye Zoom"), 1, 2, kZoom, GameFunctions},
    {0x64, NAME("HawkEye Brightness"), 2, 4, kFiveLevels, GameFunctions},
    {0x65, NAME("HawkEye Contrast"), 2, 4, kFiveLevels, GameFunctions},
    {0x66, NAME("HawkEye Sharpness"), 2, 4, kFiveLevels, GameFunctions},
    {0x30, NAME("Refresh Rate"), 0, 1, kSwitch, GameFunctions},
    {0x31, NAME("Refresh Rate Place"), 0, 3, kCorner, GameFunctions, 0x30},
    {0x3E, NAME("Stopwatch"), 0, 1, kSwitch, GameFunctions},
    {0x33, NAME("Stopwatch Time"), 1, 4, kCountUp, GameFunctions, 0x3E},
    {0x35, NAME("Stopwatch Place"), 0, 3, kCorner, GameFunctions},
    {0x3F, NAME("Game Time"), 0, 1, kSwitch, GameFunctions},
    {0x36, NAME("Game Time Length"), 1, 4, kCountDown, GameFunctions, 0x3F},
    {0x37, NAME("Game Time Place"), 0, 3, kCorner, GameFunctions},
    {0x4B, NAME("Focus Dimming"), 0, 1, kSwitch, GameFunctions},
    {0x4C, NAME("Focus Dimming Level"), 0, 2, kStrength, GameFunctions},
};

} // namespace

std::span<const OsdFunction> game()
{
    return kGameMenu;
}

} // namespace virtualdesk::menus
