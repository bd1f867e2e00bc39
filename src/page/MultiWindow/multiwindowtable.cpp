#include "page/MultiWindow/multiwindowtable.h"

#include "ddc_protocol/devicestate.h"
#include "page/MultiWindow/windowspicture.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonoptions.h"
#include "page/engine/labels.h"

namespace {

constexpr char kHelp[] =
    LABEL("Shows two inputs at once. Drag the small window of PIP to a corner, or one of its edges to a size.");

constexpr Option kModes[] = {
    {LABEL("Close"), kOneWindow, LABEL("One input fills the screen.")},
    {LABEL("PIP"), kPictureInPicture,
     LABEL("Picture in picture: a second input in a small window over the first, to keep an eye on another computer.")},
    {LABEL("PBP"), kPictureByPicture,
     LABEL("Picture by picture: two inputs side by side, each on half of the screen, to work on both.")},
};
constexpr Option kSizes[] = {
    {LABEL("Small"), 0, LABEL("A quarter of the screen's width: hides least of the first input.")},
    {LABEL("Medium"), 1, LABEL("A third of the screen's width.")},
    {LABEL("Large"), 2, LABEL("More than two fifths of the screen's width: small text stays readable.")},
};

bool hasNoInset(const DeviceState &state)
{
    return shownValue(state, Command::MultiWindow).value_or(kPictureInPicture) != kPictureInPicture;
}

constexpr char kNoInset[] = LABEL("Only the small window of PIP has a size and a place.");
constexpr LockRule kLocks[] = {
    {OptionsOf{Command::InsetSize, 0, 2}, hasNoInset, kNoInset, {Command::MultiWindow, kPictureInPicture}},
    {OptionsOf{Command::InsetPlace, 0, 3}, hasNoInset, kNoInset, {Command::MultiWindow, kPictureInPicture}},
};

const Section kSections[] = {
    groupOf(Command::MultiWindow, kModes),
    OptionGroup{LABEL("Size"), Command::InsetSize, kSizes}, // short, where the page says whose
    OptionGroup{LABEL("Place"), Command::InsetPlace, kCornerOptions, {}, GroupLook::Buttons, kCornerHelp},
};
const PanelSpec kPanels[] = {
    panelOf(Command::MultiWindow, "multi_window", "panelMultiWindow", kSections, kHelp, &kWindowsPicture)};

} // namespace

std::span<const PanelSpec> multiWindowPanels()
{
    return kPanels;
}

std::span<const LockRule> multiWindowLocks()
{
    return kLocks;
}
