#include "page/Game/picturetable.h"

#include "controls/metrics.h"
#include "page/Game/enhancepictures.h"
#include "page/Game/gamepictures.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"
#include "page/engine/commonpictures.h"

namespace {

// What they are for.
constexpr char kHDRHelp[] =
    LABEL("How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.");
constexpr char kAdaptiveSyncHelp[] =
    LABEL("The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.");

// When to switch it on.
constexpr char kAdaptiveSyncWhen[] =
    LABEL("For games, whose pictures come now faster, now slower. The computer must have it switched on as well.");

constexpr int kCaption = metrics::kCaptionWidth;

// The switches of the motion function and of local dimming always send 0, although the option "Close" of the same
// groups sends 2. Both are meant.
constexpr Option kAlwaysOff[] = {{LABEL("         Disable"), 0}, {LABEL("         Enable"), 0}};

constexpr Option kHdr[] = {{LABEL("Close"), 0, LABEL("Every picture is shown with the usual range.")},
                           {LABEL("Auto"), 1, LABEL("Bright parts shine when the signal has the range for it.")},
                           {LABEL("Game"), 2, LABEL("As Auto, with dark parts that stay readable.")},
                           {LABEL("Movie"), 3, LABEL("As Auto, with deep shadows as a film wants them.")}};

// "Strong" on the scene page.
constexpr std::array kLocalDimming = dimmingOptions(LABEL("High"));

const SliderSpec kColorEnhance[] = {sliderOf(Command::ColorEnhance, 0, 10, SendOn::ReleaseWithStore)};
const SliderSpec kContrastEnhance[] = {sliderOf(Command::ContrastEnhance, 0, 5, SendOn::ReleaseWithStore)};
constexpr SliderSpec kShadowBalance[] = {
    {"Shadow Balance", LABEL("Shadow Balance"), Command::BlackLevel, 0, 100, SendOn::ReleaseWithStore}};
constexpr SliderSpec kSuperResolution[] = {
    {"SR", LABEL("SR"), Command::SuperResolution, 0, 5, SendOn::ReleaseWithStore}};
const SliderSpec kHaloControl[] = {sliderOf(Command::HaloControl, 0, 100, SendOn::ReleaseWithStore)};

constexpr OptionGroup makeSwitch(const char *label, Command command, std::span<const Option> halves,
                                 const char *help = nullptr)
{
    return {label, command, halves, {}, GroupLook::Switch, help};
}

// Its panel, unlike its value in the list of all, is there for every monitor that has this page.
const Section kGameRush[] = {makeSwitch(LABEL("Game Rush"), Command::GameRush, kSwitchOptions, kGameRushWhen)};
const Section kDyds[] = {makeSwitch(LABEL("DyDs"), Command::MotionTech, kAlwaysOff),
                         OptionGroup{LABEL("DyDs"), Command::MotionTech, kMotionOptions}};
const Section kMpcs[] = {makeSwitch(LABEL("MPCS"), Command::MotionTech, kAlwaysOff),
                         OptionGroup{LABEL("MPCS"), Command::MotionTech, kMotionOptions}};
const Section kNightVisionPanel[] = {groupOf(Command::NightVision, kNightVisionOptions)};
const Section kDynamicOd[] = {OptionGroup{LABEL("Dynamic OD"), Command::GrayResponse, kGrayResponseOptions}};
const Section kHdrPanel[] = {groupOf(Command::Hdr, kHdr)};
const Section kColorEnhancePanel[] = {SliderGrid{nullptr, 1, kCaption, kColorEnhance}};
const Section kContrastEnhancePanel[] = {SliderGrid{nullptr, 1, kCaption, kContrastEnhance}};
const Section kShadowBalancePanel[] = {SliderGrid{nullptr, 1, kCaption, kShadowBalance}};
const Section kSuperResolutionPanel[] = {SliderGrid{nullptr, 1, kCaption, kSuperResolution}};
const Section kLocalDimmingPanel[] = {switchOf(Command::LocalDimming, kAlwaysOff),
                                      groupOf(Command::LocalDimming, kLocalDimming)};
const Section kHaloControlPanel[] = {SliderGrid{nullptr, 1, kCaption, kHaloControl}};
const Section kAdaptiveSync[] = {switchOf(Command::AdaptiveSync, kSwitchOptions, kAdaptiveSyncWhen)};

// The motion function has another name where it is another one.
const PanelSpec kPicturePanels[] = {
    {LABEL("Game Rush"), "game_rush", "pageGameRush", kGameRush, {}, kGameRushHelp, &gamepictures::kRush},
    {LABEL("DyDs"), "motion", "pageMotion", kDyds, {}, kMotionHelp, &commonpictures::kMotion, Capability::MpcsMotion},
    {LABEL("MPCS"), "motion", "pageMpcs", kMpcs, Capability::MpcsMotion, kMotionHelp, &commonpictures::kMotion},
    panelOf(Command::NightVision, "night_vision", "pageNightVision", kNightVisionPanel, kNightVisionHelp,
            &gamepictures::kNightVision),
    {LABEL("Dynamic OD"), "dynamic_od", "pageDynamicOD", kDynamicOd, {}, kResponseHelp, &commonpictures::kResponse},
    panelOf(Command::Hdr, "hdr", "pageHDR", kHdrPanel, kHDRHelp, &enhancepictures::kHdr),
    panelOf(Command::ColorEnhance, "color_enhance", "pageColorEnhance", kColorEnhancePanel, kColorHelp,
            &enhancepictures::kColor),
    panelOf(Command::ContrastEnhance, "cr_enhance", "pageCREnhance", kContrastEnhancePanel, kContrastHelp,
            &enhancepictures::kContrast),
    {LABEL("Shadow Balance"),
     "shadow_balance",
     "pageShadowBalance",
     kShadowBalancePanel,
     {},
     kShadowHelp,
     &enhancepictures::kShadows},
    {LABEL("SR"),
     "super_resolution",
     "pageSR",
     kSuperResolutionPanel,
     {},
     kResolutionHelp,
     &enhancepictures::kResolution},
    panelOf(Command::LocalDimming, "local_dimming", "pageLocaldimming", kLocalDimmingPanel, kDimmingHelp,
            &commonpictures::kDimming),
    panelOf(Command::HaloControl, "halo_control", "pageHaloControl", kHaloControlPanel, kHaloHelp,
            &commonpictures::kHalo),
    panelOf(Command::AdaptiveSync, "adaptive_sync", "pageAdaptiveSync", kAdaptiveSync, kAdaptiveSyncHelp,
            &enhancepictures::kSync),
};

} // namespace

std::span<const PanelSpec> picturePanels()
{
    return kPicturePanels;
}
