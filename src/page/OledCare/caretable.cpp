#include "page/OledCare/caretable.h"

#include "page/OledCare/carepictures.h"
#include "page/engine/commandrows.h"
#include "page/engine/labels.h"

namespace {

// What they are for.
constexpr char kPlanHelp[] =
    LABEL("Care evens out how the pixels have aged, so that no picture stays visible. It takes about 6 minutes.");
constexpr char kShiftHelp[] =
    LABEL("Moves the whole picture by a few pixels now and then, so that edges do not burn in. Close = off.");
constexpr char kStillHelp[] = LABEL("Dims the screen while nothing moves. Detection Rate is how soon it notices that.");
constexpr char kIconHelp[] =
    LABEL("Dims signs that stand still, such as a station's logo. Close = off; Low to High are stronger in turn.");
constexpr char kTaskbarHelp[] =
    LABEL("Dims the taskbar, which always stands in one place. Close = off; Low to High are stronger in turn.");
constexpr char kBoundaryHelp[] = LABEL(
    "Dims the border between bright and dark, as beside black bars. Close = off; Low to High are stronger in turn.");
constexpr char kIspHelp[] =
    LABEL("Image sticking protection: clears what a picture leaves behind as soon as it is gone.");

// When to switch them on.
constexpr char kStillWhen[] =
    LABEL("For a screen that is left alone for long. Films and games move and are not dimmed.");
constexpr char kIspWhen[] = LABEL("Leave it on, unless you see the clearing itself as a flicker when windows close.");

constexpr char kLow[] = LABEL("A little darker: hardly to be seen, for normal work.");
constexpr char kMedium[] = LABEL("Visibly darker, for long days with the same windows.");
constexpr char kHigh[] = LABEL("Much darker: the best protection where the same picture stands for hours.");

constexpr Option kShift[] = {
    {LABEL("Close"), 0, LABEL("The picture stays where it is.")},
    {LABEL("Slow"), 1, LABEL("Moves seldom: nobody notices it.")},
    {LABEL("Normal"), 2, LABEL("Moves now and then, for everyday work.")},
    {LABEL("Fast"), 3, LABEL("Moves often: for menus and maps that stand still for hours.")},
};
constexpr Option kRate[] = {
    {LABEL("Slow"), 0, LABEL("Waits long before it dims: good for reading.")},
    {LABEL("Normal"), 1, LABEL("Dims after a few minutes without a change.")},
    {LABEL("Fast"), 2, LABEL("Dims soon: spares the panel most.")},
};
constexpr Option kLevels[] = {
    {LABEL("Close"), 0, LABEL("Nothing is dimmed.")},
    {LABEL("Low"), 1, kLow},
    {LABEL("Medium"), 2, kMedium},
    {LABEL("High"), 3, kHigh},
};
constexpr Option kMode[] = {
    {LABEL("Auto"), kCareByItself, LABEL("The monitor begins by itself when it goes to standby.")},
    {LABEL("Manual"), 1, LABEL("Care begins only when you start it.")},
};
constexpr int kHours[] = {4, 8, 12, 24};
constexpr Option kIntervals[] = {
    {LABEL("4 Hour"), 0}, {LABEL("8 Hour"), 1}, {LABEL("12 Hour"), 2}, {LABEL("24 Hour"), 3}};

constexpr char kIntervalHelp[] = LABEL("After how many hours of use the next care is due.");
constexpr char kReminderHelp[] = LABEL("The monitor itself says on the screen that care is due.");
constexpr char kDesktopHelp[] =
    LABEL("This tool says on the desktop that care is due: never over a program that fills the screen.");

const Section kPlan[] = {
    groupOf(Command::CareMode, kMode),
    groupOf(Command::CareInterval, kIntervals, kIntervalHelp),
    switchOf(Command::CareReminder, kSwitchOptions, kReminderHelp),
    ownSwitch(kDesktopReminder, kSwitchOptions, kDesktopHelp),
    CustomPart{kCarePart},
};
const Section kShiftPanel[] = {groupOf(Command::PixelShift, kShift)};
const Section kStillPanel[] = {switchOf(Command::StillPicture, kSwitchOptions, kStillWhen),
                               groupOf(Command::DetectionRate, kRate)};
const Section kIconPanel[] = {groupOf(Command::StaticIcon, kLevels)};
const Section kTaskbarPanel[] = {groupOf(Command::Taskbar, kLevels)};
const Section kBoundaryPanel[] = {groupOf(Command::Boundary, kLevels)};
const Section kIspPanel[] = {switchOf(Command::CareIsp, kSwitchOptions, kIspWhen)};

const PanelSpec kPanels[] = {
    {LABEL("Care Plan"), "care_plan", "panelCarePlan", kPlan, Capability::OledPanel, kPlanHelp},
    panelOf(Command::PixelShift, "pixel_shift", "panelPixelShift", kShiftPanel, kShiftHelp, &carepictures::kPixelShift),
    panelOf(Command::StillPicture, "still_picture", "panelStillPicture", kStillPanel, kStillHelp,
            &carepictures::kStillPicture),
    panelOf(Command::StaticIcon, "static_icon", "panelStaticIcon", kIconPanel, kIconHelp, &carepictures::kStaticIcon),
    panelOf(Command::Taskbar, "taskbar", "panelTaskbar", kTaskbarPanel, kTaskbarHelp, &carepictures::kTaskbar),
    panelOf(Command::Boundary, "boundary", "panelBoundary", kBoundaryPanel, kBoundaryHelp, &carepictures::kBoundary),
    panelOf(Command::CareIsp, "isp", "panelIsp", kIspPanel, kIspHelp, &carepictures::kIsp),
};

} // namespace

std::span<const PanelSpec> carePanels()
{
    return kPanels;
}

std::optional<int> hoursOfInterval(std::optional<int> option)
{
    const bool isOne = option && *option >= 0 && *option < static_cast<int>(std::size(kHours));
    return isOne ? std::optional(kHours[*option]) : std::nullopt;
}
