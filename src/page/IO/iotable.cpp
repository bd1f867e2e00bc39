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

constexpr Option kUsbSwitch[] = {
    {LABEL("Type-C"), 0, LABEL("Keyboard and mouse at the monitor belong to the computer at the Type-C socket.")},
    {LABEL("Type-B"), 1, LABEL("Keyboard and mouse at the monitor belong to the computer at the Type-B socket.")}};
constexpr Option kDpTypeC[] = {{LABEL("5.4G"), 0, LABEL("Slower, and steadier with long or old cables.")},
                               {LABEL("8.1G"), 1, LABEL("Fast enough for every resolution and refresh rate.")}};
constexpr char kSocketWords[] = LABEL("Always this socket. The screen stays dark while nothing comes from there.");
constexpr Option kInputSignal[] = {
    {LABEL("Auto"), 0, LABEL("The socket that has a signal. For one computer, or one at a time.")},
    {LABEL("DP1"), 1, kSocketWords},
    {LABEL("DP2"), 2, kSocketWords},
    {LABEL("Type-C"), 3, kSocketWords},
    {LABEL("HDMI1"), 4, kSocketWords},
    {LABEL("HDMI2"), 5, kSocketWords}};

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
