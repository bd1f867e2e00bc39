#include "page/Scene/scenelocks.h"

#include <vector>

#include "ddc_protocol/devicestate.h"
#include "page/Scene/scenetable.h"
#include "page/engine/labels.h"

namespace {

constexpr int kEBook = 21; ///< black and white, in both halves

bool isBlackAndWhite(const DeviceState &state)
{
    const int scene = state.value(Command::SceneMode);
    return scene == kEBook || scene == kEBook + 1;
}

bool isColorEnhanced(const DeviceState &state)
{
    return shownValue(state, Command::ColorEnhance).value_or(0) > 0;
}

bool isNotNightView(const DeviceState &state)
{
    return shownValue(state, Command::ColorTemperature).value_or(kNightViewTemperature) != kNightViewTemperature;
}

bool hasNoUserColours(const DeviceState &state)
{
    return userSlot(shownValue(state, Command::ColorTemperature).value_or(kFirstUserTemperature)) == 0;
}

constexpr char kNoColour[] = LABEL("E-Book Mode is black and white: colours need another scene mode.");

// The mode stands before the settings: what it locks no setting can unlock.
constexpr LockRule kSceneLocks[] = {
    {SlidersNamed{"Hue_"}, isBlackAndWhite, kNoColour, {Command::SceneMode}},
    {SlidersNamed{"Saturation_"}, isBlackAndWhite, kNoColour, {Command::SceneMode}},
    {SlidersNamed{"Color Enchance"}, isBlackAndWhite, kNoColour, {Command::SceneMode}},
    {SlidersNamed{"Saturation_"},
     isColorEnhanced,
     LABEL("Saturation follows Color Enchance while that is above 0."),
     {Command::ColorEnhance}},
    {SlidersNamed{kNightViewSlider},
     isNotNightView,
     LABEL("This slider counts while Color Temperature is Night View C.T."),
     {Command::ColorTemperature, kNightViewTemperature}},
    {SlidersNamed{"User"},
     hasNoUserColours,
     LABEL("Red, green and blue belong to User1, User2 and User3 of Color Temperature."),
     {Command::ColorTemperature, kFirstUserTemperature}},
};

} // namespace

std::span<const LockRule> sceneLocks()
{
    static const std::vector<LockRule> rules = [] {
        std::vector<LockRule> all(std::begin(kSceneLocks), std::end(kSceneLocks));
        all.insert(all.end(), motionLocks().begin(), motionLocks().end());
        return all;
    }();
    return rules;
}
