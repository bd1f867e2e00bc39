// The lamps behind the screen and at the foot.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"
#include "virtualdesk/monitormodel.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kLightMode[] = {{0, NAME("Close")},         {1, NAME("Normal")},        {2, NAME("Effect")},
                                    {3, NAME("Global Rhythm")}, {4, NAME("2 Zone Rhythm")}, {5, NAME("Eye Care")}};
constexpr OsdOption kLightEffect[] = {
    {0, NAME("Breathe")}, {1, NAME("Flow")}, {2, NAME("Rainbow")}, {3, NAME("Wave")}, {4, NAME("Flicker")}};
constexpr OsdOption kLightColor[] = {{0, NAME("Red")},   {1, NAME("Yellow")}, {2, NAME("Green")},
                                     {3, NAME("Cyan")},  {4, NAME("Blue")},   {5, NAME("Purple")},
                                     {6, NAME("White")}, {7, NAME("Auto")},   {8, NAME("Custom")}};
constexpr OsdOption kLampLevel[] = {{0, NAME("Soft")}, {1, NAME("Standard")}, {2, NAME("Highlight")}};
constexpr OsdOption kRhythmSource[] = {{0, NAME("Sound")}, {1, NAME("Screen")}};
constexpr OsdOption kLightDirection[] = {{0, NAME("Clockwise")}, {1, NAME("Counterclockwise")}};
constexpr OsdOption kLightTimer[] = {{0, NAME("Close")}, {1, NAME("30 min")}, {2, NAME("1 Hour")}, {3, NAME("2 Hour")}};
constexpr OsdOption kBeltEffect[] = {{0, NAME("Normal")}, {1, NAME("Breathe")}, {2, NAME("Flicker")},
                                     {3, NAME("Water")},  {4, NAME("Star")},    {5, NAME("Pearl")}};

constexpr OsdFunction kLightMenu[] = {
    {0x75, NAME("Light Mode"), 1, 5, kLightMode, GameFunctions},
    {0x76, NAME("Light Effect"), 0, 4, kLightEffect, GameFunctions},
    {0x77, NAME("Light Brightness"), 60, 100, {}, GameFunctions},
    {0x78, NAME("Light Speed"), 5, 10, {}, GameFunctions},
    {0x79, NAME("Light Color"), 3, 8, kLightColor, GameFunctions},
    {0x7A, NAME("Light Color R"), 255, 255, {}, GameFunctions},
    {0x7B, NAME("Light Color G"), 160, 255, {}, GameFunctions},
    {0x7C, NAME("Light Color B"), 64, 255, {}, GameFunctions},
    {0x7D, NAME("Light Temperature"), 30, 100, {}, GameFunctions},
    {0x7E, NAME("Light Level"), 1, 2, kLampLevel, GameFunctions},
    {0x7F, NAME("Front Color"), 6, 7, kColor, GameFunctions},
    {0x80, NAME("Rear Color"), 4, 7, kColor, GameFunctions},
    {0x81, NAME("Front Brightness"), 40, 100, {}, GameFunctions},
    {0x82, NAME("Rear Brightness"), 60, 100, {}, GameFunctions},
    {0x83, NAME("Rhythm Source"), 1, 1, kRhythmSource, GameFunctions},
    {0x84, NAME("Rhythm Level"), 2, 4, kFiveLevels, GameFunctions},
    {0x85, NAME("Light Direction"), 0, 1, kLightDirection, GameFunctions},
    {0x86, NAME("Rhythm Color"), 0, 0xFFFF, {}, GameFunctions},
    {0x88, NAME("Rhythm Color L"), 0, 0xFFFF, {}, GameFunctions},
    {0x89, NAME("Rhythm Color R"), 0, 0xFFFF, {}, GameFunctions},
    {0x8A, NAME("Light in Standby"), 0, 1, kSwitch, GameFunctions},
    {0x8B, NAME("Dark with the Screen"), 1, 1, kSwitch, GameFunctions},
    {0x8C, NAME("Light Timer"), 0, 3, kLightTimer, GameFunctions},
    {0x8D, NAME("Soft Changes"), 1, 1, kSwitch, GameFunctions},
    {0xE5, NAME("Lamp Belt Color"), 5, 7, kColor, GameFunctions},
    {0xE6, NAME("Lamp Belt Brightness"), 1, 2, kLampLevel, GameFunctions},
    {0xE7, NAME("Lamp Belt Effect"), 0, 5, kBeltEffect, GameFunctions},
    {0xE8, NAME("Lamp Belt Front Color"), 3, 7, kColor, GameFunctions},
    {0xE9, NAME("Lamp Belt Rear Color"), 5, 7, kColor, GameFunctions},
};

} // namespace

std::span<const OsdFunction> light()
{
    return kLightMenu;
}

} // namespace virtualdesk::menus
