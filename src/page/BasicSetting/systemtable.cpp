#include "page/BasicSetting/systemtable.h"

#include <algorithm>
#include <iterator>

#include "controls/metrics.h"
#include "page/BasicSetting/systempictures.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"
#include "page/engine/commonpictures.h"

namespace {

// What they are for.
constexpr char kOSDSettingHelp[] =
    LABEL("How and where the monitor shows its menu, and how soon it sleeps without a signal (No Signal Timer).");
constexpr char kPowerSavingHelp[] = LABEL("The monitor uses less power. Close = off, Level2 saves the most.");
constexpr char kAudioSettingsHelp[] =
    LABEL("The sound of the monitor. Audio Mute: Close = sound, Open = silence. Convo = for voices.");
constexpr char kPowerLEDHelp[] =
    LABEL("How bright the lamp shines that tells that the monitor is on. Close = dark, Level3 = brightest.");
constexpr char kGravitySensorHelp[] =
    LABEL("The monitor notices when its screen is turned upright. Close = off, Open = on.");
constexpr char kResetFactoryHelp[] = LABEL("Sets everything in the monitor back to how it left the factory.");
constexpr char kLanguageHelp[] = LABEL("The language of the monitor's own menu, not of this tool.");
constexpr char kMenuLockHelp[] = LABEL("Locks the monitor's own menu, so that nobody changes it by accident.");
constexpr char kNoSignalTimerHelp[] = LABEL("How long the monitor waits without a signal before it sleeps.");

constexpr int kCaption = metrics::kCaptionWidth;

/// For the two that are no percentages.
SliderSpec inUnit(SliderSpec slider, const char *unit)
{
    slider.unit = unit;
    return slider;
}

const SliderSpec kOsd[] = {
    inUnit(sliderOf(Command::OsdShowTime, 5, 100), LABEL("%1 s")),
    sliderOf(Command::OsdHPosition, 0, 100),
    sliderOf(Command::OsdVPosition, 0, 100),
    sliderOf(Command::OsdTransparency, 0, 100),
    inUnit(sliderOf(Command::NoSignalTimer, 0, 100, SendOn::Move, kNoSignalTimerHelp), LABEL("%1 min")),
};
const SliderSpec kVolume[] = {sliderOf(Command::AudioVolume, 0, 100)};
constexpr Option kAudioMode[] = {{LABEL("Standard"), 0, LABEL("The sound as it comes, for music and all else.")},
                                 {LABEL("Movie"), 1, LABEL("Deep and high tones are stronger, as in a cinema.")},
                                 {LABEL("Convo"), 2, LABEL("Voices come forward, for talks and conferences.")}};

// When to switch them on.
constexpr char kAudioMuteWhen[] = LABEL("Silences the monitor for a while; the volume stays as it is set.");
constexpr char kGravitySensorWhen[] = LABEL("If you turn the screen now and then: the monitor's menu turns with it.");
constexpr char kMenuLockWhen[] = LABEL("Where others pass by, or a hand easily touches the monitor's buttons.");

constexpr Option kPowerSaving[] = {{LABEL("Close"), 0, LABEL("As bright as you set it.")},
                                   {LABEL("Level1"), 1, LABEL("A little darker, and a little cheaper.")},
                                   {LABEL("Level2"), 2, LABEL("Clearly darker: for texts, not for pictures.")}};

// Unlike Power Saving these start at 1.
constexpr Option kPowerLed[] = {
    {LABEL("Close"), 1, LABEL("The lamp is dark. Only the picture tells that the monitor is on.")},
    {LABEL("Level1"), 2, LABEL("A faint light, for a dark room.")},
    {LABEL("Level2"), 3, LABEL("The usual light.")},
    {LABEL("Level3"), 4, LABEL("The brightest light, seen across a bright room.")}};

// The places in the list, counted from 1, but for the fifth and the last, which the monitor has exchanged. The names
// are shown as they stand in every language; two of them are spelled oddly on purpose.
constexpr Option kLanguages[] = {
    {"简体中文", 1},
    {"English", 2},
    {"한국어", 3},
    {"عربى", 4},
    {"Türkçe", 23},
    {"Deutsch", 6},
    {"Nederland", 7},
    {"Suomi", 8},
    {"Français", 9},
    {"Ελληνικά", 10},
    {"Indonesia", 11},
    {"Italiano", 12},
    {"日本語", 13},
    {"Malaysia", 14},
    {"Polskie", 15},
    {"Português", 16},
    {"Pусский", 17},
    {"Español", 18},
    {"ไทย", 19},
    {"Українська", 20},
    {"Tiếng Việt", 21},
    {"繁體中文", 22},
    {"Portugues do Brasilazil", 5},
};

const Section kOutputRange[] = {groupOf(Command::OutputRange, kOutputRangeOptions)};
const Section kOsdSetting[] = {SliderGrid{nullptr, 1, kCaption, kOsd}};
const Section kPowerSavingPanel[] = {groupOf(Command::PowerSaving, kPowerSaving)};
const Section kAudioSettings[] = {SliderGrid{nullptr, 1, kCaption, kVolume},
                                  switchOf(Command::AudioMute, kCloseOpen, kAudioMuteWhen),
                                  groupOf(Command::AudioMode, kAudioMode)};
const Section kPowerLedPanel[] = {groupOf(Command::PowerLed, kPowerLed)};
const Section kGravitySensor[] = {switchOf(Command::GravitySensor, kCloseOpen, kGravitySensorWhen)};
const Section kResetFactory[] = {CustomPart{kResetPart}};
const Section kOsdLanguage[] = {groupOf(Command::OsdLanguage, kLanguages)};
const Section kMenuLock[] = {switchOf(Command::MenuLock, kSwitchOptions, kMenuLockWhen)};

const PanelSpec kSystemPanels[] = {
    panelOf(Command::OutputRange, "output_range", "pageOutputRange", kOutputRange, kRangeHelp, &commonpictures::kRange),
    {LABEL("OSD Setting"), "osd_setting", "pageOSDSetting", kOsdSetting, {}, kOSDSettingHelp, &systempictures::kOsd},
    panelOf(Command::PowerSaving, "power_saving", "pagePowerSaving", kPowerSavingPanel, kPowerSavingHelp,
            &systempictures::kPowerSaving),
    {LABEL("Audio Settings"),
     "audio_settings",
     "pageAduioSettings", // spelled so
     kAudioSettings,
     {},
     kAudioSettingsHelp,
     &systempictures::kAudio},
    panelOf(Command::PowerLed, "power_led", "pagePowerLED", kPowerLedPanel, kPowerLEDHelp, &systempictures::kPowerLed),
    panelOf(Command::GravitySensor, "gravity_sensor", "pageGravitySensor", kGravitySensor, kGravitySensorHelp,
            &systempictures::kGravity),
    panelOf(Command::ResetFactory, "reset_factory", "pageRestFactorySettings", kResetFactory, kResetFactoryHelp),
    panelOf(Command::OsdLanguage, "osd_language", "pageLanguage", kOsdLanguage, kLanguageHelp,
            &systempictures::kLanguage),
    panelOf(Command::MenuLock, "menu_lock", "pageMenuLock", kMenuLock, kMenuLockHelp, &systempictures::kMenuLock),
};

} // namespace

const char *osdLanguageName(int value)
{
    const auto *found = std::ranges::find(kLanguages, value, &Option::value);
    return found == std::end(kLanguages) ? "" : found->label;
}

std::span<const PanelSpec> systemPanels()
{
    return kSystemPanels;
}
