#include "page/Emberline/lighttable.h"

#include "controls/metrics.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/commandrows.h"
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

constexpr Option kModes[] = {
    {LABEL("Close"), 0, LABEL("The lamps behind the screen are dark.")},
    {LABEL("Normal"), 1, LABEL("One colour that stands still. Calm enough for work.")},
    {LABEL("Effect"), kEffectMode, LABEL("The light moves by itself. For games and guests.")},
    {LABEL("Global Rhythm"), kGlobalRhythmMode, LABEL("All lamps follow sound or screen in one colour.")},
    {LABEL("2 Zone Rhythm"), kZoneRhythmMode,
     LABEL("The left and the right half follow each its own side. For films.")},
    {LABEL("Eye Care"), kEyeCareMode, LABEL("A calm white on the wall, for long evenings at the screen.")}};
constexpr Option kEffects[] = {
    {LABEL("Breathe"), 0, LABEL("All lamps come and go slowly. The quietest effect.")},
    {LABEL("Flow"), 1, LABEL("A light runs around the ring.")},
    {LABEL("Rainbow"), 2, LABEL("All colours at once, which turn around the ring.")},
    {LABEL("Wave"), 3, LABEL("Light and dark follow each other around the ring.")},
    {LABEL("Flicker"), 4, LABEL("Short flashes. Not for people who do not bear flashing light.")}};
constexpr Option kDirections[] = {{LABEL("Clockwise"), 0}, {LABEL("Counterclockwise"), 1}};
constexpr Option kSources[] = {
    {LABEL("Sound"), 0, LABEL("Colour and brightness follow what this computer plays. For music.")},
    {LABEL("Screen"), 1, LABEL("The lamps take the colours of the picture's edges. For films and games.")}};
constexpr Option kLampLevels[] = {{LABEL("Soft"), 0, LABEL("A faint light, for a dark room.")},
                                  {LABEL("Standard"), 1, LABEL("The usual light.")},
                                  {LABEL("Highlight"), 2, LABEL("The brightest light, for a bright room.")}};
constexpr Option kTimers[] = {{LABEL("Close"), 0}, {LABEL("30 min"), 1}, {LABEL("1 Hour"), 2}, {LABEL("2 Hour"), 3}};
constexpr Option kBeltEffects[] = {{LABEL("Normal"), 0, LABEL("The belt stands still in its colour.")},
                                   {LABEL("Breathe"), 1, LABEL("The whole belt comes and goes slowly.")},
                                   {LABEL("Flicker"), 2, LABEL("The whole belt flashes. Hard to bear beside work.")},
                                   {LABEL("Water"), 3, LABEL("The light flows along the belt.")},
                                   {LABEL("Star"), 4, LABEL("Single points light up here and there.")},
                                   {LABEL("Pearl"), 5, LABEL("A point of light runs along the belt, like a bead.")}};

// What groups do whose options say themselves which they are.
constexpr char kDirectionHelp[] = LABEL("Which way round the light runs, as seen from behind.");
constexpr char kFadeHelp[] = LABEL("One colour melts into the next. Off = it changes at once.");
constexpr char kSteadyColorHelp[] =
    LABEL("Take one that goes with the wall: light on a coloured wall looks different.");
constexpr char kFrontColorHelp[] = LABEL("The colour of the light on the desk. White is best for reading and writing.");
constexpr char kRearColorHelp[] = LABEL("The colour of the light on the wall behind the screen.");
constexpr char kRhythmLevelHelp[] =
    LABEL("Level1 follows great changes only, for a quiet room; Level5 also small ones.");
constexpr char kBeltColorHelp[] =
    LABEL("The colour of the belt along the lower edge. Auto = runs through all colours.");
constexpr char kBeltFrontHelp[] = LABEL("The colour of the belt at the front of the foot.");
constexpr char kBeltRearHelp[] = LABEL("The colour of the belt at the back of the foot.");
constexpr char kTimerHelp[] = LABEL("The lighting goes out by itself after this time. Close = it stays on.");
constexpr char kWithScreenHelp[] = LABEL("The lighting goes out and comes back with the screen.");
constexpr char kInStandbyHelp[] = LABEL("The lighting stays on while the monitor sleeps, as a light for the night.");

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

SliderSpec slider(Command command, int maximum, const char *caption)
{
    return sliderOf(command, 0, maximum, SendOn::Move, nullptr, caption);
}

const SliderSpec kBrightness[] = {slider(Command::LightBrightness, 100, LABEL("Brightness"))};
const SliderSpec kSpeed[] = {slider(Command::LightSpeed, 10, LABEL("Speed"))};
const SliderSpec kTemperature[] = {slider(Command::LightTemperature, 100, LABEL("Color Temperature"))};
const SliderSpec kFrontBrightness[] = {sliderOf(Command::LightFrontBrightness, 0, 100)};
const SliderSpec kRearBrightness[] = {sliderOf(Command::LightRearBrightness, 0, 100)};

SliderGrid row(std::span<const SliderSpec> sliders)
{
    return {nullptr, 1, metrics::kCaptionWidth, sliders};
}

constexpr CustomPart kPicture{kLightPicturePart};
const Section kModePanel[] = {groupOf(Command::LightMode, kModes, nullptr, LABEL("Mode")), row(kBrightness), kPicture};
const Section kEffectPanel[] = {groupOf(Command::LightEffect, kEffects, nullptr, LABEL("Effect")), row(kSpeed),
                                groupOf(Command::LightDirection, kDirections, kDirectionHelp, LABEL("Direction")),
                                switchOf(Command::LightFade, kSwitchOptions, kFadeHelp), kPicture};
const Section kColorPanel[] = {swatchesOf(Command::LightColor, kOwnColors, LABEL("Color"), kSteadyColorHelp),
                               CustomPart{kOwnColorPart}, kPicture};
const Section kPlacesPanel[] = {
    swatchesOf(Command::LightFrontColor, kColors, nullptr, kFrontColorHelp), row(kFrontBrightness),
    swatchesOf(Command::LightRearColor, kColors, nullptr, kRearColorHelp), row(kRearBrightness), kPicture};
const Section kEyeCarePanel[] = {groupOf(Command::LightEyeCare, kLampLevels, nullptr, LABEL("Brightness")),
                                 row(kTemperature), CustomPart{kTemperatureEndsPart}, kPicture};
const Section kRhythmPanel[] = {groupOf(Command::LightRhythmSource, kSources),
                                groupOf(Command::LightRhythmLevel, kFiveLevels, kRhythmLevelHelp),
                                CustomPart{kRhythmNotePart}, kPicture};
const Section kBeltPanel[] = {swatchesOf(Command::LampBeltColor, kColors, LABEL("Color"), kBeltColorHelp),
                              groupOf(Command::LampBeltBrightness, kLampLevels, nullptr, LABEL("Brightness")),
                              groupOf(Command::LampBeltEffect, kBeltEffects, nullptr, LABEL("Effect")),
                              swatchesOf(Command::LampBeltFrontColor, kColors, LABEL("Front Color"), kBeltFrontHelp),
                              swatchesOf(Command::LampBeltRearColor, kColors, LABEL("Rear Color"), kBeltRearHelp),
                              kPicture};
const Section kTimesPanel[] = {groupOf(Command::LightTimer, kTimers, kTimerHelp),
                               switchOf(Command::LightWithScreen, kSwitchOptions, kWithScreenHelp),
                               switchOf(Command::LightInStandby, kSwitchOptions, kInStandbyHelp), kPicture};

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
