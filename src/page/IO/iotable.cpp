#include "page/IO/iotable.h"

#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kQuickBootHelp[] = LABEL("The monitor comes on faster, but needs more power while it is off.");
constexpr char kUSBPowerHelp[] =
    LABEL("Power for devices at the monitor's USB sockets, and the picture through the Type-C socket (DP Alt Mode).");
constexpr char kUSBSwitchHelp[] =
    LABEL("Which cable the monitor's USB sockets go to, and how fast the picture comes through DP or Type-C.");
constexpr char kInputSignalHelp[] = LABEL("Which socket the picture comes from. Auto = the one that has a signal.");
constexpr char kCECHelp[] = LABEL("The monitor and devices at its HDMI sockets switch each other on and off.");

constexpr Option kUsbSwitch[] = {{LABEL("Type-C"), 0}, {LABEL("Type-B"), 1}};
constexpr Option kDpTypeC[] = {{LABEL("5.4G"), 0}, {LABEL("8.1G"), 1}};
constexpr Option kInputSignal[] = {{LABEL("Auto"), 0},   {LABEL("DP1"), 1},   {LABEL("DP2"), 2},
                                   {LABEL("Type-C"), 3}, {LABEL("HDMI1"), 4}, {LABEL("HDMI2"), 5}};

constexpr OptionGroup makeSwitch(const char *label, Command command)
{
    return {label, command, kSwitchOptions, {}, GroupLook::Switch};
}

const Section kOutputRange[] = {OptionGroup{LABEL("Output Range"), Command::OutputRange, kOutputRangeOptions}};
const Section kQuickBoot[] = {makeSwitch(LABEL("Quick Boot"), Command::QuickBoot)};
const Section kUsbPower[] = {makeSwitch(LABEL("USB Power"), Command::UsbPower),
                             makeSwitch(LABEL("DP Alt Mode"), Command::DpAltMode)};
const Section kUsbSwitchPanel[] = {OptionGroup{LABEL("USB Switch"), Command::UsbSwitch, kUsbSwitch},
                                   OptionGroup{LABEL("DP/Type-C"), Command::DpTypeC, kDpTypeC}};
const Section kInputSignalPanel[] = {CustomPart{kInputNowPart},
                                     OptionGroup{LABEL("Input Signal"), Command::InputSignal, kInputSignal},
                                     CustomPart{kPreviewPart}};
const Section kCec[] = {makeSwitch(LABEL("CEC"), Command::Cec)};

const PanelSpec kPanels[] = {
    {LABEL("Output Range"), "output_range", "pageOutputRange", kOutputRange, {}, kRangeHelp},
    {LABEL("Quick Boot"), "quick_boot", "pageQuickBoot", kQuickBoot, {}, kQuickBootHelp},
    {LABEL("USB Power"), "usb_power", "pageUSBPower", kUsbPower, {}, kUSBPowerHelp},
    {LABEL("USB Switch"), "usb_switch", "pageUSBSwitch", kUsbSwitchPanel, {}, kUSBSwitchHelp},
    {LABEL("Input Signal"), "input_signal", "pageInputSignal", kInputSignalPanel, {}, kInputSignalHelp},
    {LABEL("CEC"), "cec", "pageCEC", kCec, {}, kCECHelp},
};

} // namespace

std::span<const PanelSpec> ioPanels()
{
    return kPanels;
}
