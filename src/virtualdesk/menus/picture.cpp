// The picture; first, since the scene changes most of it.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"
#include "virtualdesk/monitormodel.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kColorTemperature[] = {{0, "5000K"}, {1, "5500K"}, {2, "6300K"}, {3, "6500K"},
                                           {4, "7000K"}, {5, "7500K"}, {6, "9300K"}, {7, NAME("Night View C.T")},
                                           {8, "User1"}, {9, "User2"}, {10, "User3"}};
constexpr OsdOption kGamma[] = {{0, "1.6"}, {1, "1.8"}, {2, "2.0"},  {3, "2.2"},
                                {4, "2.4"}, {5, "2.6"}, {6, "sRGB"}, {7, "CAD/CAM"}};
// 0 is the off state of the switch that the same menus have beside their levels.
constexpr OsdOption kLocalDimming[] = {{0, NAME("Close")},  {2, NAME("Close")},  {3, NAME("Low")},
                                       {4, NAME("Smooth")}, {5, NAME("Medium")}, {6, NAME("Strong")}};
constexpr OsdOption kMotion[] = {{0, NAME("Close")},      {2, NAME("Close")},     {3, NAME("Low")},
                                 {4, NAME("Medium")},     {5, NAME("High")},      {6, NAME("Ull-Level1")},
                                 {7, NAME("Ull-Level2")}, {8, NAME("Ull-Level3")}};
constexpr OsdOption kResponse[] = {
    {0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}, {3, NAME("Level3")}, {4, NAME("Topspeed")}};
constexpr OsdOption kHdr[] = {{0, NAME("Close")}, {1, NAME("Auto")}, {2, NAME("Game")}, {3, NAME("Movie")}};
constexpr OsdOption kNightVision[] = {
    {0, NAME("Close")}, {1, NAME("Level1")}, {2, NAME("Level2")}, {3, NAME("Auto-L1")}, {4, NAME("Auto-L2")}};

constexpr OsdFunction kPictureMenu[] = {
    {0x10, NAME("Brightness"), 50, 100, {}},
    {0x12, NAME("Contrast"), 50, 100, {}},
    {0x87, NAME("Sharpness"), 4, 8, {}},
    {0x14, NAME("Color Temperature"), 3, 10, kColorTemperature},
    {0x15, NAME("Night View C.T"), 50, 100, {}},
    {0x26, NAME("Gama"), 3, 7, kGamma},
    {0x40, NAME("Color Enchance"), 0, 10, {}},
    {0x41, NAME("CR Enhance"), 2, 10, {}},
    {0x42, NAME("Black Level"), 50, 100, {}},
    {0x44, NAME("Super Resolution"), 1, 5, {}},
    {0x49, NAME("Gray Response"), 1, 4, kResponse},
    {0x48, NAME("DyDs TECH"), 2, 8, kMotion},
    {0x47, NAME("Localdimming"), 4, 6, kLocalDimming, LocalDimming},
    {0x46, NAME("Halo Control"), 40, 100, {}, HaloControl},
    {0xD8, NAME("Low Blue Light"), 0, 4, {}},
    {0xDA, NAME("Light Sensor"), 0, 1, kSwitch},
    {0x4A, NAME("HDR"), 0, 3, kHdr},
    {0x45, NAME("Night Vision"), 0, 4, kNightVision},
    {0x43, NAME("Adaptive-Sync"), 1, 1, kSwitch},
    {0xE4, NAME("Game Rush"), 0, 1, kSwitch},
};

} // namespace

std::span<const OsdFunction> picture()
{
    return kPictureMenu;
}

} // namespace virtualdesk::menus
