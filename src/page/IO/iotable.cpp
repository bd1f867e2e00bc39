#include "page/IO/iotable.h"

#include "page/IO/iopictures.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"
#include "page/engine/commonpictures.h"

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

const Section kOutputRange[] = {groupOf(Command::OutputRange, kOutputRangeOptions)};
const Section kQuickBoot[] = {switchOf(Command::QuickBoot)};
const Section kUsbPower[] = {switchOf(Command::UsbPower), switchOf(Command::DpAltMode)};
const Section kUsbSwitchPanel[] = {groupOf(Command::UsbSwitch, kUsbSwitch), groupOf(Command::DpTypeC, kDpTypeC)};
const Section kInputSignalPanel[] = {CustomPart{kInputNowPart}, groupOf(Command::InputSignal, kInputSignal),
                                     CustomPart{kPreviewPart}};
const Section kCec[] = {switchOf(Command::Cec)};

const PanelSpec kPanels[] = {
    panelOf(Command::OutputRange, "output_range", "pageOutputRange", kOutputRange, kRangeHelp, &commonpictures::kRange),
    panelOf(Command::QuickBoot, "quick_boot", "pageQuickBoot", kQuickBoot, kQuickBootHelp),
    panelOf(Command::UsbPower, "usb_power", "pageUSBPower", kUsbPower, kUSBPowerHelp),
    panelOf(Command::UsbSwitch, "usb_switch", "pageUSBSwitch", kUsbSwitchPanel, kUSBSwitchHelp, &iopictures::kUsb),
    panelOf(Command::InputSignal, "input_signal", "pageInputSignal", kInputSignalPanel, kInputSignalHelp,
            &iopictures::kInput),
    panelOf(Command::Cec, "cec", "pageCEC", kCec, kCECHelp),
};

} // namespace

std::span<const PanelSpec> ioPanels()
{
    return kPanels;
}
