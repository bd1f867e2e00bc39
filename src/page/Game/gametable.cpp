#include "page/Game/gametable.h"

#include "page/Game/gamepictures.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kCrosshairHelp[] =
    LABEL("Drawn by the monitor itself, so it works in every game and is no program that a game could see.");
constexpr char kHawkEyeHelp[] = LABEL("Enlarges the middle of the screen, so that what is far away is seen.");
constexpr char kRefreshRateHelp[] = LABEL("Shows in a corner how many pictures a second the monitor gets.");
constexpr char kStopwatchHelp[] = LABEL("Counts up in a corner, to the time that you choose, and begins again.");
constexpr char kGameTimeHelp[] = LABEL("Counts down in a corner, so that you notice how long you have played.");
constexpr char kMovingHelp[] =
    LABEL("A crosshair that takes the colour that stands out and opens while the picture moves.");
constexpr char kFocusHelp[] = LABEL("Darkens the rim of the screen, so that the middle draws the eye.");

constexpr char kShape[] = LABEL("Shape");
constexpr char kColor[] = LABEL("Color");
constexpr char kPlace[] = LABEL("Place");
constexpr char kTime[] = LABEL("Time");
constexpr char kSize[] = LABEL("Size");
constexpr char kLevel[] = LABEL("Level");

// The monitor numbers these from 1, as the times below.
constexpr Option kShapes[] = {{LABEL("Cross"), 1, LABEL("Easy to find, and covers what it points at.")},
                              {LABEL("Open cross"), 2, LABEL("Leaves the target free.")},
                              {LABEL("Dotted cross"), 3, LABEL("Leaves the target free but for its very middle.")},
                              {LABEL("Ring"), 4, LABEL("For targets that move: what is in the ring is near enough.")},
                              {LABEL("Caret"), 5, LABEL("Nothing above the point: for shots that fall.")},
                              {LABEL("Dot"), 6, LABEL("The smallest one. Covers least.")}};
constexpr Option kColors[] = {
    {LABEL("Red"), 0, LABEL("Seen best on green and grey, as in woods and towns."), "swatch/red.png"},
    {LABEL("Yellow"), 1, LABEL("Seen best in the dark and on blue."), "swatch/yellow.png"},
    {LABEL("Green"), 2, LABEL("Bright on nearly everything but grass."), "swatch/green.png"},
    {LABEL("Cyan"), 3, LABEL("Seen best on sand, fire and rust."), "swatch/cyan.png"},
    {LABEL("Blue"), 4, LABEL("Quiet: seen best on snow and bright walls."), "swatch/blue.png"},
    {LABEL("Purple"), 5, LABEL("A colour that few games have themselves."), "swatch/purple.png"},
    {LABEL("White"), 6, LABEL("Seen best in dark scenes."), "swatch/white.png"},
    {LABEL("Auto"), 7, LABEL("Always the opposite of what lies behind it."), "swatch/auto.png"}};
constexpr Option kPlaces[] = {
    {LABEL("Top"), 0, LABEL("Far above the middle, for games that aim high on the screen.")},
    {LABEL("Middle+"), 1, LABEL("A little above the middle, as games need it that look over a shoulder.")},
    {LABEL("Middle"), 2, LABEL("In the very middle, where most games aim.")},
    {LABEL("Middle-"), 3, LABEL("A little below the middle, for a view that is tilted up.")},
    {LABEL("Bottom"), 4, LABEL("Far below the middle, for games that aim low on the screen.")}};
constexpr Option kTimes[] = {{LABEL("15 min"), 1}, {LABEL("30 min"), 2}, {LABEL("60 min"), 3}, {LABEL("90 min"), 4}};
constexpr Option kLengths[] = {{LABEL("30 min"), 1}, {LABEL("40 min"), 2}, {LABEL("50 min"), 3}, {LABEL("60 min"), 4}};
constexpr Option kZooms[] = {{LABEL("x1.5"), 0, LABEL("For scenes that are near.")},
                             {LABEL("x2"), 1, LABEL("For most games.")},
                             {LABEL("x4"), 2, LABEL("For wide landscapes; coarse.")}};
constexpr Option kStrengths[] = {{LABEL("Low"), 0, LABEL("A shade at the rim that is hardly noticed.")},
                                 {LABEL("Medium"), 1, LABEL("A dark rim: the eye stays in the middle.")},
                                 {LABEL("High"), 2, LABEL("A very dark rim, for games that play in the middle.")}};
constexpr Option kSizes[] = {{LABEL("Small"), 0, LABEL("Covers least. For a screen that is near.")},
                             {LABEL("Medium"), 1, LABEL("For most games.")},
                             {LABEL("Large"), 2, LABEL("Found at once, also from far away.")}};

// What groups do whose options differ by their amount only.
constexpr char kHawkEyeBrightnessHelp[] =
    LABEL("How bright the enlarged part is. Level3 = as the rest; higher ones show what is in the shade.");
constexpr char kHawkEyeContrastHelp[] =
    LABEL("How far light and dark are apart in it. Level3 = as the rest; higher ones help in fog and dust.");
constexpr char kHawkEyeSharpnessHelp[] =
    LABEL("How clear its edges are. Level3 = as they come; lower ones hide coarse dots, higher ones show outlines.");
constexpr char kTimesHelp[] = LABEL("Counts up to this and begins again. Take the length of a round.");
constexpr char kLengthsHelp[] = LABEL("Counts down from this. Take as long as you mean to play.");

// When to switch them on.
constexpr char kCrosshairWhen[] = LABEL("For games that have no crosshair of their own, or one that is hard to see.");
constexpr char kHawkEyeWhen[] = LABEL("For games with far targets. It covers a part of the picture.");
constexpr char kRefreshRateWhen[] = LABEL("To see whether a game runs as smoothly as the monitor could show it.");
constexpr char kStopwatchWhen[] = LABEL("To know how long a round has gone on without looking away.");
constexpr char kGameTimeWhen[] = LABEL("To stop in time.");
constexpr char kMovingWhen[] = LABEL("For fast games in which a crosshair that stands still gets lost.");
constexpr char kFocusWhen[] =
    LABEL("For games in which the middle decides. Maps and figures at the rim get darker too.");

const Section kRush[] = {switchOf(Command::GameRush, kSwitchOptions, kGameRushWhen)};
const Section kCrosshair[] = {switchOf(Command::Crosshair, kSwitchOptions, kCrosshairWhen),
                              picturesOf(Command::CrosshairShape, kShapes, gamepictures::drawShape, kShape),
                              swatchesOf(Command::CrosshairColor, kColors, kColor),
                              groupOf(Command::CrosshairPlace, kPlaces, nullptr, kPlace)};
const Section kHawkEye[] = {
    switchOf(Command::HawkEyeVision, kSwitchOptions, kHawkEyeWhen),
    groupOf(Command::HawkEyeZoom, kZooms, nullptr, LABEL("Zoom")),
    groupOf(Command::HawkEyeBrightness, kFiveLevels, kHawkEyeBrightnessHelp, LABEL("Brightness")),
    groupOf(Command::HawkEyeContrast, kFiveLevels, kHawkEyeContrastHelp, LABEL("Contrast")),
    groupOf(Command::HawkEyeSharpness, kFiveLevels, kHawkEyeSharpnessHelp, LABEL("Sharpness"))};
const Section kNightVision[] = {groupOf(Command::NightVision, kNightVisionOptions)};
const Section kRefreshRate[] = {switchOf(Command::RefreshRate, kSwitchOptions, kRefreshRateWhen),
                                groupOf(Command::RefreshRatePlace, kCornerOptions, kCornerHelp, kPlace)};
const Section kStopwatch[] = {switchOf(Command::Stopwatch, kSwitchOptions, kStopwatchWhen),
                              groupOf(Command::StopwatchTime, kTimes, kTimesHelp, kTime),
                              groupOf(Command::StopwatchPlace, kCornerOptions, kCornerHelp, kPlace)};
const Section kGameTime[] = {switchOf(Command::GameTime, kSwitchOptions, kGameTimeWhen),
                             groupOf(Command::GameTimeLength, kLengths, kLengthsHelp, kTime),
                             groupOf(Command::GameTimePlace, kCornerOptions, kCornerHelp, kPlace)};
const Section kMoving[] = {switchOf(Command::MovingCrosshair, kSwitchOptions, kMovingWhen),
                           swatchesOf(Command::MovingCrosshairColor, kColors, kColor),
                           groupOf(Command::MovingCrosshairSize, kSizes, nullptr, kSize)};
const Section kFocus[] = {switchOf(Command::FocusDimming, kSwitchOptions, kFocusWhen),
                          groupOf(Command::FocusDimmingLevel, kStrengths, nullptr, kLevel)};
const Section kDual[] = {switchOf(Command::AiDualMode, kCloseOpen, kAiDualModeWhen)};

const PanelSpec kGamePanels[] = {
    panelOf(Command::GameRush, "game_rush", "gameRush", kRush, kGameRushHelp, &gamepictures::kRush),
    panelOf(Command::Crosshair, "crosshair", "gameCrosshair", kCrosshair, kCrosshairHelp, &gamepictures::kCrosshair),
    panelOf(Command::HawkEyeVision, "hawkeye_vision", "gameHawkEye", kHawkEye, kHawkEyeHelp, &gamepictures::kHawkEye),
    panelOf(Command::NightVision, "night_vision", "gameNightVision", kNightVision, kNightVisionHelp,
            &gamepictures::kNightVision),
    panelOf(Command::RefreshRate, "refresh_rate", "gameRefreshRate", kRefreshRate, kRefreshRateHelp,
            &gamepictures::kRefreshRate),
    panelOf(Command::Stopwatch, "stopwatch", "gameStopwatch", kStopwatch, kStopwatchHelp, &gamepictures::kStopwatch),
    panelOf(Command::GameTime, "game_time", "gameTime", kGameTime, kGameTimeHelp, &gamepictures::kGameTime),
    panelOf(Command::MovingCrosshair, "dynamic_crosshair", "gameMovingCrosshair", kMoving, kMovingHelp,
            &gamepictures::kMovingCrosshair),
    panelOf(Command::FocusDimming, "focus_dimming", "gameFocusDimming", kFocus, kFocusHelp,
            &gamepictures::kFocusDimming),
    panelOf(Command::AiDualMode, "ai_dual_mode", "gameDualMode", kDual, kAiDualModeHelp, &gamepictures::kDualMode),
};

} // namespace

std::span<const PanelSpec> gamePanels()
{
    return kGamePanels;
}
