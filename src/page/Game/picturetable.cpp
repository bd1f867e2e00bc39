#include "page/Game/picturetable.h"
#include "ddc_protocol/devicestate.h"

#include "controls/metrics.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kGameRushHelp[] = LABEL(
    "Shortens the delay between your hand and the picture in fast games. Adaptive-Sync cannot be chosen meanwhile.");
constexpr char kNightVisionHelp[] =
    LABEL("Brightens dark scenes. Close = off, Level1 and Level2 = always, Auto-L1 and Auto-L2 = when needed.");
constexpr char kHDRHelp[] =
    LABEL("How pictures with a high dynamic range are shown. Close = off, Auto = when the signal has it.");
constexpr char kAdaptiveSyncHelp[] =
    LABEL("The monitor keeps pace with the game: no torn or jerky pictures. Game Rush must be off.");

constexpr int kCaption = metrics::kCaptionWidth;

// The switches of the motion function and of local dimming always send 0, although the option "Close" of the same
// groups sends 2. Both are meant.
constexpr Option kAlwaysOff[] = {{LABEL("         Enable"), 0}, {LABEL("         Disable"), 0}};

constexpr Option kNightVision[] = {
    {LABEL("Close"), 0}, {LABEL("Level1"), 1}, {LABEL("Level2"), 2}, {LABEL("Auto-L1"), 3}, {LABEL("Auto-L2"), 4}};
constexpr Option kHdr[] = {{LABEL("Close"), 0}, {LABEL("Auto"), 1}, {LABEL("Game"), 2}, {LABEL("Movie"), 3}};

// The last option is "High" here and "Strong" on the scene page; the value is the same.
constexpr Option kLocalDimming[] = {
    {LABEL("Close"), 2}, {LABEL("Low"), 3}, {LABEL("Smooth"), 4}, {LABEL("Medium"), 5}, {LABEL("High"), 6}};

constexpr SliderSpec kColorEnhance[] = {
    {"Color Enhance", LABEL("Color Enhance"), Command::ColorEnhance, 0, 10, SendOn::ReleaseWithStore}};
constexpr SliderSpec kContrastEnhance[] = {
    {"CR Enhance", LABEL("CR Enhance"), Command::ContrastEnhance, 0, 5, SendOn::ReleaseWithStore}};
constexpr SliderSpec kShadowBalance[] = {
    {"Shadow Balance", LABEL("Shadow Balance"), Command::BlackLevel, 0, 100, SendOn::ReleaseWithStore}};
constexpr SliderSpec kSuperResolution[] = {
    {"SR", LABEL("SR"), Command::SuperResolution, 0, 5, SendOn::ReleaseWithStore}};
constexpr SliderSpec kHaloControl[] = {
    {"Halo Control", LABEL("Halo Control"), Command::HaloControl, 0, 100, SendOn::ReleaseWithStore}};

constexpr OptionGroup makeSwitch(const char *label, Command command, std::span<const Option> halves = kSwitchOptions)
{
    return {label, command, halves, {}, GroupLook::Switch};
}

const Section kGameRush[] = {makeSwitch(LABEL("Game Rush"), Command::GameRush)};
const Section kDyds[] = {makeSwitch(LABEL("DyDs"), Command::MotionTech, kAlwaysOff),
                         OptionGroup{LABEL("DyDs"), Command::MotionTech, kMotionOptions}};
const Section kMpcs[] = {makeSwitch(LABEL("MPCS"), Command::MotionTech, kAlwaysOff),
                         OptionGroup{LABEL("MPCS"), Command::MotionTech, kMotionOptions}};
const Section kNightVisionPanel[] = {OptionGroup{LABEL("Night Vision"), Command::NightVision, kNightVision}};
const Section kDynamicOd[] = {OptionGroup{LABEL("Dynamic OD"), Command::GrayResponse, kGrayResponseOptions}};
const Section kHdrPanel[] = {OptionGroup{LABEL("HDR"), Command::Hdr, kHdr}};
const Section kColorEnhancePanel[] = {SliderGrid{nullptr, 1, kCaption, kColorEnhance}};
const Section kContrastEnhancePanel[] = {SliderGrid{nullptr, 1, kCaption, kContrastEnhance}};
const Section kShadowBalancePanel[] = {SliderGrid{nullptr, 1, kCaption, kShadowBalance}};
const Section kSuperResolutionPanel[] = {SliderGrid{nullptr, 1, kCaption, kSuperResolution}};
const Section kLocalDimmingPanel[] = {makeSwitch(LABEL("Localdimming"), Command::LocalDimming, kAlwaysOff),
                                      OptionGroup{LABEL("Localdimming"), Command::LocalDimming, kLocalDimming}};
const Section kHaloControlPanel[] = {SliderGrid{nullptr, 1, kCaption, kHaloControl}};
const Section kAdaptiveSync[] = {makeSwitch(LABEL("Adaptive-Sync"), Command::AdaptiveSync)};

} // namespace

std::vector<PanelSpec> picturePanels(const DeviceState &state)
{
    const PanelSpec motion = state.has(Capability::MpcsMotion)
                                 ? PanelSpec{LABEL("MPCS"), "motion", "pageMotion", kMpcs, {}, kMotionHelp}
                                 : PanelSpec{LABEL("DyDs"), "motion", "pageMotion", kDyds, {}, kMotionHelp};
    return {
        {LABEL("Game Rush"), "game_rush", "pageGameRush", kGameRush, {}, kGameRushHelp},
        motion,
        {LABEL("Night Vision"), "night_vision", "pageNightVision", kNightVisionPanel, {}, kNightVisionHelp},
        {LABEL("Dynamic OD"), "dynamic_od", "pageDynamicOD", kDynamicOd, {}, kResponseHelp},
        {LABEL("HDR"), "hdr", "pageHDR", kHdrPanel, {}, kHDRHelp},
        {LABEL("Color Enhance"), "color_enhance", "pageColorEnhance", kColorEnhancePanel, {}, kColorHelp},
        {LABEL("CR Enhance"), "cr_enhance", "pageCREnhance", kContrastEnhancePanel, {}, kContrastHelp},
        {LABEL("Shadow Balance"), "shadow_balance", "pageShadowBalance", kShadowBalancePanel, {}, kShadowHelp},
        {LABEL("SR"), "super_resolution", "pageSR", kSuperResolutionPanel, {}, kResolutionHelp},
        {LABEL("Localdimming"), "local_dimming", "pageLocaldimming", kLocalDimmingPanel, Capability::LocalDimming,
         kDimmingHelp},
        {LABEL("Halo Control"), "halo_control", "pageHaloControl", kHaloControlPanel, Capability::HaloControl,
         kHaloHelp},
        {LABEL("Adaptive-Sync"), "adaptive_sync", "pageAdaptiveSync", kAdaptiveSync, {}, kAdaptiveSyncHelp},
    };
}
