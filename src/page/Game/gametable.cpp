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
    {LABEL("Red"), 0, nullptr, "swatch/red.png"},
    {LABEL("Yellow"), 1, nullptr, "swatch/yellow.png"},
    {LABEL("Green"), 2, nullptr, "swatch/green.png"},
    {LABEL("Cyan"), 3, nullptr, "swatch/cyan.png"},
    {LABEL("Blue"), 4, nullptr, "swatch/blue.png"},
    {LABEL("Purple"), 5, nullptr, "swatch/purple.png"},
    {LABEL("White"), 6, nullptr, "swatch/white.png"},
    {LABEL("Auto"), 7, LABEL("Always the opposite of what lies behind it."), "swatch/auto.png"}};
constexpr Option kPlaces[] = {
    {LABEL("Top"), 0}, {LABEL("Middle+"), 1}, {LABEL("Middle"), 2}, {LABEL("Middle-"), 3}, {LABEL("Bottom"), 4}};
constexpr Option kTimes[] = {{LABEL("15 min"), 1}, {LABEL("30 min"), 2}, {LABEL("60 min"), 3}, {LABEL("90 min"), 4}};
constexpr Option kLengths[] = {{LABEL("30 min"), 1}, {LABEL("40 min"), 2}, {LABEL("50 min"), 3}, {LABEL("60 min"), 4}};
constexpr Option kZooms[] = {{LABEL("x1.5"), 0, LABEL("For scenes that are near.")},
                             {LABEL("x2"), 1, LABEL("For most games.")},
                             {LABEL("x4"), 2, LABEL("For wide landscapes; coarse.")}};
constexpr Option kStrengths[] = {{LABEL("Low"), 0}, {LABEL("Medium"), 1}, {LABEL("High"), 2}};
constexpr Option kSizes[] = {{LABEL("Small"), 0}, {LABEL("Medium"), 1}, {LABEL("Large"), 2}};

const Section kRush[] = {switchOf(Command::GameRush)};
const Section kCrosshair[] = {
    switchOf(Command::Crosshair), picturesOf(Command::CrosshairShape, kShapes, gamepictures::drawShape, kShape),
    swatchesOf(Command::CrosshairColor, kColors, kColor), groupOf(Command::CrosshairPlace, kPlaces, nullptr, kPlace)};
const Section kHawkEye[] = {switchOf(Command::HawkEyeVision),
                            groupOf(Command::HawkEyeZoom, kZooms, nullptr, LABEL("Zoom")),
                            groupOf(Command::HawkEyeBrightness, kFiveLevels, nullptr, LABEL("Brightness")),
                            groupOf(Command::HawkEyeContrast, kFiveLevels, nullptr, LABEL("Contrast")),
                            groupOf(Command::HawkEyeSharpness, kFiveLevels, nullptr, LABEL("Sharpness"))};
const Section kNightVision[] = {groupOf(Command::NightVision, kNightVisionOptions)};
const Section kRefreshRate[] = {switchOf(Command::RefreshRate),
                                groupOf(Command::RefreshRatePlace, kCornerOptions, nullptr, kPlace)};
const Section kStopwatch[] = {switchOf(Command::Stopwatch), groupOf(Command::StopwatchTime, kTimes, nullptr, kTime),
                              groupOf(Command::StopwatchPlace, kCornerOptions, nullptr, kPlace)};
const Section kGameTime[] = {switchOf(Command::GameTime), groupOf(Command::GameTimeLength, kLengths, nullptr, kTime),
                             groupOf(Command::GameTimePlace, kCornerOptions, nullptr, kPlace)};
const Section kMoving[] = {switchOf(Command::MovingCrosshair),
                           swatchesOf(Command::MovingCrosshairColor, kColors, kColor),
                           groupOf(Command::MovingCrosshairSize, kSizes, nullptr, kSize)};
const Section kFocus[] = {switchOf(Command::FocusDimming),
                          groupOf(Command::FocusDimmingLevel, kStrengths, nullptr, kLevel)};
const Section kDual[] = {switchOf(Command::AiDualMode, kCloseOpen)};

const PanelSpec kPanels[] = {
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
    return kPanels;
}
