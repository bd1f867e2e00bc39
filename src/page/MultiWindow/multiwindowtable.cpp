#include "page/MultiWindow/multiwindowtable.h"

#include "ddc_protocol/devicestate.h"
#include "page/engine/commandrows.h"
#include "page/engine/labels.h"

namespace {

constexpr char kHelp[] =
    LABEL("Shows two inputs at once. Close = one, PIP = the second in a small window, PBP = side by side.");

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
constexpr Option kPlaces[] = {
    {LABEL("Top Left"), 0, LABEL("The second input lies in the upper left corner.")},
    {LABEL("Top Right"), 1, LABEL("The second input lies in the upper right corner.")},
    {LABEL("Bottom Left"), 2, LABEL("The second input lies in the lower left corner.")},
    {LABEL("Bottom Right"), 3, LABEL("The second input lies in the lower right corner.")},
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
    OptionGroup{LABEL("Place"), Command::InsetPlace, kPlaces},
    CustomPart{kArrangementPart},
};
const PanelSpec kPanels[] = {panelOf(Command::MultiWindow, "multi_window", "panelMultiWindow", kSections, kHelp)};

} // namespace

std::span<const PanelSpec> multiWindowPanels()
{
    return kPanels;
}

std::span<const LockRule> multiWindowLocks()
{
    return kLocks;
}

std::span<const Option> insetSizes()
{
    return kSizes;
}

std::span<const Option> insetPlaces()
{
    return kPlaces;
}
