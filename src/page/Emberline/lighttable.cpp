#include "page/Emberline/lighttable.h"

#include "controls/metrics.h"
#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kModeHelp[] = LABEL(
    "Close = dark, Normal = one colour, Effect = it moves, Rhythm = follows sound or screen, Eye Care = calm white.");
constexpr char kEffectHelp[] =
    LABEL("How the lamps move in the mode \"Effect\". The picture plays it as it will look.");
constexpr char kColorHelp[] =
    LABEL("The colour of the steady light and of the effects. Auto = runs through all colours.");
constexpr char kPlacesHelp[] =
    LABEL("The lamp in front lights the desk, the one at the rear the wall: less contrast for tired eyes.");
constexpr char kEyeCareHelp[] =
    LABEL("A white behind the screen that spares the eyes. Warm in the evening, cold by day.");
constexpr char kRhythmHelp[] =
    LABEL("Sound = what this computer plays, Screen = the picture's edges. Higher levels follow smaller changes.");
constexpr char kBeltHelp[] = LABEL("The lamp belt along the lower edge and around the foot has a light of its own.");
constexpr char kTimesHelp[] = LABEL("When the lighting goes out by itself, and whether it stays on in standby.");

constexpr Option kModes[] = {{LABEL("Close"), 0},
                             {LABEL("Normal"), 1},
                             {LABEL("Effect"), kEffectMode},
                             {LABEL("Global Rhythm"), kGlobalRhythmMode},
                             {LABEL("2 Zone Rhythm"), kZoneRhythmMode},
                             {LABEL("Eye Care"), kEyeCareMode}};
constexpr Option kEffects[] = {
    {LABEL("Breathe"), 0}, {LABEL("Flow"), 1}, {LABEL("Rainbow"), 2}, {LABEL("Wave"), 3}, {LABEL("Flicker"), 4}};
constexpr Option kDirections[] = {{LABEL("Clockwise"), 0}, {LABEL("Counterclockwise"), 1}};
constexpr Option kSources[] = {{LABEL("Sound"), 0}, {LABEL("Screen"), 1}};
constexpr Option kRhythmLevels[] = {
    {LABEL("Level1"), 0}, {LABEL("Level2"), 1}, {LABEL("Level3"), 2}, {LABEL("Level4"), 3}, {LABEL("Level5"), 4}};
constexpr Option kLampLevels[] = {{LABEL("Soft"), 0}, {LABEL("Standard"), 1}, {LABEL("Highlight"), 2}};
constexpr Option kTimers[] = {{LABEL("Close"), 0}, {LABEL("30 min"), 1}, {LABEL("1 Hour"), 2}, {LABEL("2 Hour"), 3}};
constexpr Option kBeltEffects[] = {{LABEL("Normal"), 0}, {LABEL("Breathe"), 1}, {LABEL("Flicker"), 2},
                                   {LABEL("Water"), 3},  {LABEL("Star"), 4},    {LABEL("Pearl"), 5}};

// The steady light and the effects have a colour of the user's own as well.
constexpr Option kOwnColors[] = {{LABEL("Red"), 0, nullptr, "swatch/red.png"},
                                 {LABEL("Yellow"), 1, nullptr, "swatch/yellow.png"},
                                 {LABEL("Green"), 2, nullptr, "swatch/green.png"},
                                 {LABEL("Cyan"), 3, nullptr, "swatch/cyan.png"},
                                 {LABEL("Blue"), 4, nullptr, "swatch/blue.png"},
                                 {LABEL("Purple"), 5, nullptr, "swatch/purple.png"},
                                 {LABEL("White"), 6, nullptr, "swatch/white.png"},
                                 {LABEL("Auto"), 7, nullptr, "swatch/auto.png"},
                                 {LABEL("Custom"), kOwnLightColor, nullptr, "swatch/custom.png"}};
constexpr std::span kColors = std::span(kOwnColors).first<8>();

OptionGroup options(Command command, std::span<const Option> options, const char *caption,
                    GroupLook look = GroupLook::Buttons)
{
    return {nameOf(command).label, command, options, {}, look, nullptr, nullptr, caption};
}

OptionGroup swatches(Command command, const char *caption, std::span<const Option> colors = kColors)
{
    return options(command, colors, caption, GroupLook::Swatches);
}

OptionGroup onOff(Command command)
{
    return options(command, kSwitchOptions, nullptr, GroupLook::Switch);
}

SliderSpec slider(Command command, const char *caption, int maximum)
{
    return {nameOf(command).label, caption, command, 0, maximum};
}

const SliderSpec kBrightness[] = {slider(Command::LightBrightness, LABEL("Brightness"), 100)};
const SliderSpec kSpeed[] = {slider(Command::LightSpeed, LABEL("Speed"), 10)};
const SliderSpec kTemperature[] = {slider(Command::LightTemperature, LABEL("Color Temperature"), 100)};
const SliderSpec kFrontBrightness[] = {slider(Command::LightFrontBrightness, LABEL("Front Brightness"), 100)};
const SliderSpec kRearBrightness[] = {slider(Command::LightRearBrightness, LABEL("Rear Brightness"), 100)};

SliderGrid row(std::span<const SliderSpec> sliders)
{
    return {nullptr, 1, metrics::kCaptionWidth, sliders};
}

constexpr CustomPart kPicture{kLightPicturePart};
const Section kModePanel[] = {options(Command::LightMode, kModes, LABEL("Mode")), row(kBrightness), kPicture};
const Section kEffectPanel[] = {options(Command::LightEffect, kEffects, LABEL("Effect")), row(kSpeed),
                                options(Command::LightDirection, kDirections, LABEL("Direction")),
                                onOff(Command::LightFade), kPicture};
const Section kColorPanel[] = {swatches(Command::LightColor, LABEL("Color"), kOwnColors), CustomPart{kOwnColorPart},
                               kPicture};
const Section kPlacesPanel[] = {swatches(Command::LightFrontColor, nullptr), row(kFrontBrightness),
                                swatches(Command::LightRearColor, nullptr), row(kRearBrightness), kPicture};
const Section kEyeCarePanel[] = {options(Command::LightEyeCare, kLampLevels, LABEL("Brightness")), row(kTemperature),
                                 CustomPart{kTemperatureEndsPart}, kPicture};
const Section kRhythmPanel[] = {options(Command::LightRhythmSource, kSources, nullptr),
                                options(Command::LightRhythmLevel, kRhythmLevels, nullptr), CustomPart{kRhythmNotePart},
                                kPicture};
const Section kBeltPanel[] = {swatches(Command::LampBeltColor, LABEL("Color")),
                              options(Command::LampBeltBrightness, kLampLevels, LABEL("Brightness")),
                              options(Command::LampBeltEffect, kBeltEffects, LABEL("Effect")),
                              swatches(Command::LampBeltFrontColor, LABEL("Front Color")),
                              swatches(Command::LampBeltRearColor, LABEL("Rear Color")),
                              kPicture};
const Section kTimesPanel[] = {options(Command::LightTimer, kTimers, nullptr), onOff(Command::LightWithScreen),
                               onOff(Command::LightInStandby), kPicture};

const PanelSpec kPanels[] = {
    {LABEL("Lighting"), "light_mode", "pageLightMode", kModePanel, {}, kModeHelp},
    {LABEL("Effect"), "light_effect", "pageLightEffect", kEffectPanel, {}, kEffectHelp},
    {LABEL("Color"), "light_color", "pageLightColor", kColorPanel, {}, kColorHelp},
    {LABEL("Front and Rear"), "light_places", "pageLightPlaces", kPlacesPanel, {}, kPlacesHelp},
    {LABEL("Eye Care"), "light_eye_care", "pageLightEyeCare", kEyeCarePanel, {}, kEyeCareHelp},
    {LABEL("Rhythm"), "light_rhythm", "pageLightRhythm", kRhythmPanel, {}, kRhythmHelp},
    {LABEL("Lamp Belt"), "lamp_belt", "pageLampBelt", kBeltPanel, {}, kBeltHelp},
    {LABEL("Times"), "light_times", "pageLightTimes", kTimesPanel, {}, kTimesHelp},
};

bool isOutside(const DeviceState &state, int first, int last)
{
    const std::optional<int> mode = shownValue(state, Command::LightMode);
    return mode && (*mode < first || *mode > last);
}

bool hasNoEffect(const DeviceState &state)
{
    return isOutside(state, kEffectMode, kEffectMode);
}

bool hasNoColor(const DeviceState &state)
{
    return isOutside(state, 1, kEffectMode);
}

bool hasNoRhythm(const DeviceState &state)
{
    return isOutside(state, kGlobalRhythmMode, kZoneRhythmMode);
}

bool isNotEyeCare(const DeviceState &state)
{
    return isOutside(state, kEyeCareMode, kEyeCareMode);
}

constexpr char kEffectLock[] = LABEL("Nothing moves but in the mode \"Effect\".");
constexpr char kColorLock[] = LABEL("Only the modes \"Normal\" and \"Effect\" have a colour of their own.");
constexpr char kRhythmLock[] = LABEL("Nothing is followed but in one of the two rhythm modes.");
constexpr char kEyeCareLock[] = LABEL("This is the light of the mode \"Eye Care\".");
constexpr LockTarget kToMode{Command::LightMode};

const LockRule kLocks[] = {
    {OptionsOf{Command::LightEffect, 0, 4}, hasNoEffect, kEffectLock, kToMode},
    {OptionsOf{Command::LightDirection, 0, 1}, hasNoEffect, kEffectLock, kToMode},
    {SlidersNamed{"Light Speed"}, hasNoEffect, kEffectLock, kToMode},
    {OptionsOf{Command::LightColor, 0, kOwnLightColor}, hasNoColor, kColorLock, kToMode},
    {OptionsOf{Command::LightEyeCare, 0, 2}, isNotEyeCare, kEyeCareLock, kToMode},
    {SlidersNamed{"Light Temperature"}, isNotEyeCare, kEyeCareLock, kToMode},
    {OptionsOf{Command::LightRhythmSource, 0, 1}, hasNoRhythm, kRhythmLock, kToMode},
    {OptionsOf{Command::LightRhythmLevel, 0, 4}, hasNoRhythm, kRhythmLock, kToMode},
};

} // namespace

std::span<const PanelSpec> lightPanels()
{
    return kPanels;
}

std::span<const LockRule> lightLocks()
{
    return kLocks;
}
