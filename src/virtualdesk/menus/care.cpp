// What spares an OLED panel.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"
#include "virtualdesk/monitormodel.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kPixelShift[] = {{0, NAME("Close")}, {1, NAME("Slow")}, {2, NAME("Normal")}, {3, NAME("Fast")}};
constexpr OsdOption kDetection[] = {{0, NAME("Slow")}, {1, NAME("Normal")}, {2, NAME("Fast")}};
constexpr OsdOption kDimming[] = {{0, NAME("Close")}, {1, NAME("Low")}, {2, NAME("Medium")}, {3, NAME("High")}};
constexpr OsdOption kCareMode[] = {{0, NAME("Auto")}, {1, NAME("Manual")}};
constexpr OsdOption kCareInterval[] = {
    {0, NAME("4 Hour")}, {1, NAME("8 Hour")}, {2, NAME("12 Hour")}, {3, NAME("24 Hour")}};

constexpr OsdFunction kCareMenu[] = {
    {0x01, NAME("Pixel Shift"), 2, 3, kPixelShift, OledPanel},
    {0x02, NAME("Still Picture"), 1, 1, kSwitch, OledPanel},
    {0x03, NAME("Detection Rate"), 1, 2, kDetection, OledPanel},
    {0x04, NAME("Static Icon"), 1, 3, kDimming, OledPanel},
    {0x05, NAME("Care Running"), 0, 1, {}, OledPanel},
    {0x06, NAME("Taskbar"), 1, 3, kDimming, OledPanel},
    {0x07, NAME("Boundary"), 0, 3, kDimming, OledPanel},
    {0x08, NAME("Care Due"), 0, 1, {}, OledPanel},
    {0x09, NAME("Care Reminder"), 1, 1, kSwitch, OledPanel},
    {0x0A, NAME("Care Mode"), 1, 1, kCareMode, OledPanel},
    {0x0B, NAME("Care Interval"), 0, 3, kCareInterval, OledPanel},
    {0x0D, NAME("ISP"), 1, 1, kSwitch, OledPanel},
    {0x0E, NAME("Start care"), 0, 1, {}, OledPanel},
};

} // namespace

std::span<const OsdFunction> care()
{
    return kCareMenu;
}

} // namespace virtualdesk::menus
