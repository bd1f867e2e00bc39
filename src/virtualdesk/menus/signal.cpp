// Windows, inputs, and what they carry.

#include "virtualdesk/marked.h"
#include "virtualdesk/menus/menus.h"
#include "virtualdesk/menus/options.h"

namespace virtualdesk::menus {

namespace {

constexpr OsdOption kWindows[] = {{0, NAME("Close")}, {1, NAME("PIP")}, {2, NAME("PBP")}};
constexpr OsdOption kInput[] = {{0, NAME("Auto")},   {1, NAME("DP1")},   {2, NAME("DP2")},
                                {3, NAME("Type-C")}, {4, NAME("HDMI1")}, {5, NAME("HDMI2")}};
constexpr OsdOption kUsb[] = {{0, NAME("Type-C")}, {1, NAME("Type-B")}};
constexpr OsdOption kRange[] = {{0, NAME("RGB Auto")}, {1, NAME("RGB Limit")}, {2, NAME("RGB Full")}};
constexpr OsdOption kLink[] = {{0, NAME("5.4G")}, {1, NAME("8.1G")}};
constexpr OsdOption kAudio[] = {{0, NAME("Standard")}, {1, NAME("Movie")}, {2, NAME("Convo")}};

constexpr OsdFunction kSignalMenu[] = {
    {0x50, NAME("Multi-window"), 0, 2, kWindows}, {0x54, NAME("Inset Size"), 1, 2, kSize},
    {0x55, NAME("Inset Place"), 1, 3, kCorner},   {0x57, NAME("Input Signal"), 1, 5, kInput},
    {0x60, NAME("Output Range"), 0, 2, kRange},   {0x5F, NAME("USB Switch"), 0, 1, kUsb},
    {0xD5, NAME("USB Power"), 1, 1, kSwitch},     {0xD6, NAME("DP Alt Mode"), 0, 1, kSwitch},
    {0xD7, NAME("DP/Type-C"), 1, 1, kLink},       {0xD9, NAME("CEC"), 0, 1, kSwitch},
    {0x61, NAME("Quick Boot"), 0, 1, kSwitch},    {0xF6, NAME("Audio Volume"), 30, 100, {}},
    {0xF7, NAME("Audio Mute"), 0, 1, kSwitch},    {0xEA, NAME("Audio Mode"), 0, 2, kAudio},
};

} // namespace

std::span<const OsdFunction> signal()
{
    return kSignalMenu;
}

} // namespace virtualdesk::menus
