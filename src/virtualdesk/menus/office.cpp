// Lines over a desktop, the reminder to rest, and two values of the accessory.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kPaper[] = {
    {0, NAME("Close")}, {1, NAME("Paper_A4")}, {2, NAME("Paper_B5")}, {3, NAME("Paper_B6")}, {4, NAME("Custom Size")}};
constexpr OsdOption kAlignment[] = {
    {0, NAME("Close")}, {1, NAME("Alignment_4")}, {2, NAME("Alignment_6")}, {3, NAME("Alignment_9")}};
constexpr OsdOption kRuler[] = {{0, NAME("Close")}, {1, NAME("Ruler")}, {2, NAME("Angle Ruler")}};
constexpr OsdOption kComposition[] = {{0, NAME("Close")},          {1, NAME("Triangle")},   {2, NAME("Frame")},
                                      {3, NAME("Golden Section")}, {4, NAME("Trichotomy")}, {5, NAME("Round")}};
constexpr OsdOption kRest[] = {{0, NAME("Close")},    {1, NAME("30s")},      {2, NAME("1 Hour")},
                               {3, NAME("1.5 Hour")}, {4, NAME("2 Hour")},   {5, NAME("2.5 Hour")},
                               {6, NAME("3 Hour")},   {7, NAME("3.5 Hour")}, {8, NAME("4 Hour")}};

constexpr OsdFunction kOfficeMenu[] = {
    {0xEC, NAME("Paper"), 0, 4, kPaper},
    {0xF1, NAME("Alignment"), 0, 3, kAlignment},
    {0xF2, NAME("Ruler"), 0, 2, kRuler},
    {0x3B, NAME("Alignment Aid"), 0, 1, kSwitch},
    {0x67, NAME("Matrix Mode1"), 1, 1, kSwitch},
    {0x68, NAME("Matrix Mode2"), 0, 1, kSwitch},
    {0x69, NAME("Matrix Mode3"), 0, 1, kSwitch},
    {0x70, NAME("Matrix Standby"), 0, 1, kSwitch},
    {0x71, NAME("Matrix Power Off"), 0, 1, kSwitch},
    {0x72, NAME("Matrix Brightness"), 10, 10, {}},
    {0x73, NAME("Playback Level"), 5, 10, {}},
    {0xF8, NAME("Composition"), 0, 5, kComposition},
    {0xF9, NAME("Eyeshield Remind"), 0, 8, kRest},
};

} // namespace

std::span<const OsdFunction> office()
{
    return kOfficeMenu;
}

} // namespace virtualdesk::menus
