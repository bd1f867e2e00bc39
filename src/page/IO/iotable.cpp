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

// When to switch them on.
constexpr char kQuickBootWhen[] =
    LABEL("If you switch the monitor on several times a day. CEC cannot be on at the same time.");
constexpr char kUSBPowerWhen[] =
    LABEL("For charging a telephone at the monitor, and for keyboard and mouse. Off saves power in standby.");
constexpr char kDpAltModeWhen[] =
    LABEL("For a laptop whose picture comes by its USB cable. Off if that socket only carries data and power.");
constexpr char kCECWhen[] =
    LABEL("For a player or a console that is to wake the monitor. Quick Boot cannot be on at the same time.");

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
const Section kQuickBoot[] = {switchOf(Command::QuickBoot, kSwitchOptions, kQuickBootWhen)};
const Section kUsbPower[] = {switchOf(Command::UsbPower, kSwitchOptions, kUSBPowerWhen),
                             switchOf(Command::DpAltMode, kSwitchOptions, kDpAltModeWhen)};
const Section kUsbSwitchPanel[] = {groupOf(Command::UsbSwitch, kUsbSwitch), groupOf(Command::DpTypeC, kDpTypeC)};
const Section kInputSignalPanel[] = {CustomPart{kInputNowPart}, groupOf(Command::InputSignal, kInputSignal),
                                     CustomPart{kPreviewPart}};
const Section kCec[] = {switchOf(Command::Cec, kSwitchOptions, kCECWhen)};

const PanelSpec kPanels[] = {
    panelOf(Command::OutputRange, "output_range", "pageOutputRange", kOutputRange, kRangeHelp, &commonpictures::kRange),
    panelOf(Command::QuickBoot, "quick_boot", "pageQuickBoot", kQuickBoot, kQuickBootHelp, &iopictures::kQuickBoot),
    panelOf(Command::UsbPower, "usb_power", "pageUSBPower", kUsbPower, kUSBPowerHelp, &iopictures::kUsbPower),
    panelOf(Command::UsbSwitch, "usb_switch", "pageUSBSwitch", kUsbSwitchPanel, kUSBSwitchHelp, &iopictures::kUsb),
    panelOf(Command::InputSignal, "input_signal", "pageInputSignal", kInputSignalPanel, kInputSignalHelp,
            &iopictures::kInput),
    panelOf(Command::Cec, "cec", "pageCEC", kCec, kCECHelp, &iopictures::kCec),
};

} // namespace

std::span<const PanelSpec> ioPanels()
{
    return kPanels;
}
