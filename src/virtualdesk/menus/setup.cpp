// The menu itself, and the monitor as a thing.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kSaving[] = {{0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}};
constexpr OsdOption kLed[] = {{1, NAME("Close")}, {2, NAME("Level1")}, {3, NAME("Level2")}, {4, NAME("Level3")}};

constexpr OsdFunction kSetupMenu[] = {
    {0xC0, NAME("Show Time(s)"), 20, 100, {}},    {0xC1, NAME("H-Position"), 50, 100, {}},
    {0xC2, NAME("V-Position"), 50, 100, {}},      {0xC3, NAME("Transparency"), 0, 100, {}},
    {0xC4, NAME("Menu Lock"), 0, 1, kSwitch},     {0xC5, NAME("Power LED"), 2, 4, kLed},
    {0xC6, NAME("Power Saving"), 0, 2, kSaving},  {0xCC, NAME("OSD Language"), 2, 23, {}},
    {0xE3, NAME("No Signal Timer"), 15, 100, {}}, {0xEB, NAME("Gravity Sensor"), 0, 1, kSwitch},
    {0xE0, NAME("AI Dual Mode"), 0, 1, kSwitch},
};

} // namespace

std::span<const OsdFunction> setup()
{
    return kSetupMenu;
}

} // namespace virtualdesk::menus
