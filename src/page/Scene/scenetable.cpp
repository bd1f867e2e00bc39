#include "page/Scene/scenetable.h"

#include "controls/metrics.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kGamaHelp[] = LABEL("How bright the middle tones are. The higher the value, the darker.");
constexpr char kLightSensorHelp[] = LABEL("The brightness follows the light in the room. Close = off, Open = on.");
constexpr char kColorTemperatureHelp[] =
    LABEL("How warm white looks. 5000K = warmest, 9300K = coldest, User1 to User3 = your own mixtures.");
constexpr char kLowBlueLightHelp[] = LABEL("Takes blue out of the picture, which is easier on the eyes. 0 = off.");

constexpr int kWideCaption = metrics::kCaptionWidth;
constexpr int kNarrowCaption = 64;

const SliderSpec kPictureSliders[] = {
    sliderOf(Command::Brightness, 0, 100),
    sliderOf(Command::ContrastEnhance, 0, 5, SendOn::Release, kContrastHelp),
    sliderOf(Command::Contrast, 0, 100),
    sliderOf(Command::SuperResolution, 0, 5, SendOn::Release, kResolutionHelp),
    sliderOf(Command::Sharpness, 0, 8),
    sliderOf(Command::BlackLevel, 0, 100, SendOn::Release, kShadowHelp),
    {"Color Enchance",
     LABEL("Color Enchance"),
     Command::ColorEnhance,
     0,
     10,
     SendOn::Release,
     Accent::Mint,
     {},
     kColorHelp},
    sliderOf(Command::LowBlueLight, 0, 4, SendOn::Move, kLowBlueLightHelp),
    sliderOf(Command::HaloControl, 0, 100, SendOn::Release, kHaloHelp),
};

// 6 is sRGB, which has no button.
constexpr Option kGamma[] = {{LABEL("1.6"), 0, LABEL("Very bright middle tones: shows what hides in the dark.")},
                             {LABEL("1.8"), 1, LABEL("Bright middle tones, for a bright room.")},
                             {LABEL("2.0"), 2, LABEL("Middle tones a little brighter than usual.")},
                             {LABEL("2.2"), 3, LABEL("The usual for web, office, photos and most games.")},
                             {LABEL("2.4"), 4, LABEL("Middle tones a little darker, for films in a dim room.")},
                             {LABEL("2.6"), 5, LABEL("Dark and rich in contrast, as films look in a cinema.")},
                             {LABEL("CAD/CAM"), 7, LABEL("Lifts thin lines and dark surfaces of drawings.")}};

// "High" on the picture page.
constexpr std::array kLocalDimming = dimmingOptions(LABEL("Strong"));

constexpr char kMixtureWords[] = LABEL("A mixture of your own: set its red, green and blue with the sliders below.");

constexpr Option kColorTemperature[] = {
    {LABEL("5000K"), 0, LABEL("Warm white, as paper under the lamps of a print shop.")},
    {LABEL("5500K"), 1, LABEL("A little warm, as light at noon.")},
    {LABEL("6300K"), 2, LABEL("Nearly the usual white, a touch warmer.")},
    {LABEL("6500K"), 3, LABEL("The usual white for web, photos and films.")},
    {LABEL("7000K"), 4, LABEL("A little cooler than usual.")},
    {LABEL("7500K"), 5, LABEL("Cool white: text looks crisp.")},
    {LABEL("9300K"), 6, LABEL("Very cool, bluish white, as on old screens.")},
    {LABEL("Night View C.T"), 7, LABEL("Warm white for the evening. The slider below says how warm.")},
    {LABEL("User1"), 8, kMixtureWords},
    {LABEL("User2"), 9, kMixtureWords},
    {LABEL("User3"), 10, kMixtureWords},
};

constexpr SliderSpec kNightView[] = {
    {kNightViewSlider, LABEL("Night View C.T"), Command::NightViewTemperature, 0, 100, SendOn::Release}};

// These three go to the preset that is chosen; the page picks the command.
constexpr SliderSpec kUserSliders[] = {
    {"UserR", LABEL("UserR"), Command::User1Red, 0, 100, SendOn::Move, Accent::Red},
    {"UserG", LABEL("UserG"), Command::User1Green, 0, 100, SendOn::Move, Accent::Green},
    {"UserB", LABEL("UserB"), Command::User1Blue, 0, 100, SendOn::Move, Accent::Blue},
};

constexpr SliderSpec kSaturation[] = {
    {"Saturation_R", LABEL("R"), Command::SaturationRed, 0, 100, SendOn::Move, Accent::Red},
    {"Saturation_Y", LABEL("Y"), Command::SaturationYellow, 0, 100, SendOn::Move, Accent::Yellow},
    {"Saturation_G", LABEL("G"), Command::SaturationGreen, 0, 100, SendOn::Move, Accent::Green},
    {"Saturation_C", LABEL("C"), Command::SaturationCyan, 0, 100, SendOn::Move, Accent::Cyan},
    {"Saturation_B", LABEL("B"), Command::SaturationBlue, 0, 100, SendOn::Move, Accent::Blue},
    {"Saturation_M", LABEL("M"), Command::SaturationMagenta, 0, 100, SendOn::Move, Accent::Magenta},
};

constexpr SliderSpec kHue[] = {
    {"Hue_R", LABEL("R"), Command::HueRed, 0, 100, SendOn::Move, Accent::Red},
    {"Hue_Y", LABEL("Y"), Command::HueYellow, 0, 100, SendOn::Move, Accent::Yellow},
    {"Hue_G", LABEL("G"), Command::HueGreen, 0, 100, SendOn::Move, Accent::Green},
    {"Hue_C", LABEL("C"), Command::HueCyan, 0, 100, SendOn::Move, Accent::Cyan},
    {"Hue_B", LABEL("B"), Command::HueBlue, 0, 100, SendOn::Move, Accent::Blue},
    {"Hue_M", LABEL("M"), Command::HueMagenta, 0, 100, SendOn::Move, Accent::Magenta},
};

const Section kSections[] = {
    SliderGrid{nullptr, 2, kWideCaption, kPictureSliders},
    groupOf(Command::Gamma, kGamma, kGamaHelp),
    groupOf(Command::GrayResponse, kGrayResponseOptions, kResponseHelp),
    switchOf(Command::LightSensor, kCloseOpen, kLightSensorHelp),
    groupOf(Command::LocalDimming, kLocalDimming, kDimmingHelp),
    groupOf(Command::MotionTech, kMotionOptions, kMotionHelp),
    groupOf(Command::ColorTemperature, kColorTemperature, kColorTemperatureHelp),
    SliderGrid{nullptr, 2, kWideCaption, kNightView},
    SliderGrid{nullptr, 3, kNarrowCaption, kUserSliders},
    SliderGrid{LABEL("Color Saturation"), 3, kNarrowCaption, kSaturation, true},
    SliderGrid{LABEL("Hue"), 3, kNarrowCaption, kHue, true},
};

} // namespace

std::span<const Section> sceneSections()
{
    return kSections;
}

int userSlot(int temperature)
{
    const int slot = temperature - kFirstUserTemperature + 1;
    return slot >= 1 && slot <= 3 ? slot : 0;
}
