#include "navigation.h"

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/scenemodes.h"
#include "page/engine/labels.h"

namespace {

constexpr NavigationFamily kFamilyTable[kFamilies] = {
    {LABEL("Scene"), "scene"},
    {LABEL("Mac View"), "mac_view"},
    {LABEL("Color Space"), "color_space"},
    {LABEL("Print Mode"), "print_mode"},
    {LABEL("Office Aid"), "office_aid", true},
    {LABEL("Game Aid"), "game_aid"},
    {LABEL("Oled Care"), "oled_care"},
    {LABEL("Night Loom"), "night_loom", true},
    {LABEL("Basic"), "basic", true},
};

constexpr std::uint16_t bit(Capability capability)
{
    return static_cast<std::uint16_t>(capability);
}
constexpr std::uint16_t kPictureFunctions =
    bit(Capability::LocalDimming) | bit(Capability::MpcsMotion) | bit(Capability::GameFunctions);

constexpr std::uint16_t kGame = bit(Capability::GameFunctions);
constexpr char kNoGame[] = LABEL("%1 has no game functions.");

constexpr NavigationEntry kOfficeAid[] = {
    {LABEL("Paper"), "office_paper", PageId::Office},
    {LABEL("Alignment"), "alignment", PageId::Office},
    {LABEL("Ruler"), "ruler", PageId::Office},
    {LABEL("Alignment Aid"), "alignment_aid", PageId::Office},
    {LABEL("Composition"), "composition", PageId::Office},
    {LABEL("Eyeshield Remind"), "eyeshield_remind", PageId::Office},
    {LABEL("AI Dual Mode"), "ai_dual_mode", PageId::Office},
};
constexpr NavigationEntry kGameAid[] = {
    {LABEL("Game Aid"), "game_aid", PageId::GameAssistant, 0, 0, kGame, kNoGame},
    {LABEL("Picture Enhance"), "picture_enhance", PageId::PictureEnhance, 0, kPictureFunctions},
    {LABEL("Emberline"), "emberline", PageId::Emberline, 0, kGame, kGame, kNoGame},
};
constexpr NavigationEntry kOledCare[] = {{LABEL("Care Content"), "care_content", PageId::OledCare, 0, 0,
                                          bit(Capability::OledPanel), LABEL("%1 has no OLED panel to care for.")}};
constexpr NavigationEntry kNightLoom[] = {
    {LABEL("Animate Mode"), "led_animate", PageId::LedAnimate},
    {LABEL("Text Mode"), "led_text", PageId::LedText},
    {LABEL("Music Mode"), "led_music", PageId::LedMusic},
    {LABEL("System Settings"), "led_system", PageId::LedSystem},
    {LABEL("Custom Mode"), "led_custom", PageId::LedCanvas},
    {LABEL("Game VS"), "game_vs", PageId::LedGame},
};
constexpr NavigationEntry kBasic[] = {
    {LABEL("System Settings"), "system_settings", PageId::SystemSetting},
    {LABEL("Shortcut Key"), "shortcut_key", PageId::ShortcutKey},
    {LABEL("Scence Follow"), "scence_follow", PageId::ScenarioFollowing},
    {LABEL("Service Settings"), "service_settings", PageId::ServicesSetting},
    {LABEL("Tool Settings"), "tool_settings", PageId::ToolSetting},
    {LABEL("I/O Settings"), "io_settings", PageId::IoSetting},
    {LABEL("Screen Splitter"), "screen_splitter", PageId::Splitter},
    {LABEL("Multi-window"), "multi_window", PageId::MultiWindow},
};

constexpr std::span<const NavigationEntry> kPlainFamilies[] = {kOfficeAid, kGameAid, kOledCare, kNightLoom, kBasic};

} // namespace

std::span<const NavigationFamily, kFamilies> navigationFamilies()
{
    return kFamilyTable;
}

QString lackOf(const NavigationEntry &entry, const DeviceState &state)
{
    if (entry.pageNeeds == 0 || state.hasAny(entry.pageNeeds))
        return {};
    if (!state.isKnown(Command::Capability))
        return QObject::tr("The monitor has not told yet which functions it has.");
    return QObject::tr(entry.lacking).arg(monitorName());
}

std::vector<NavigationEntry> navigationEntries(int family, const DeviceState &state)
{
    if (family >= kSceneFamilies) {
        const auto &entries = kPlainFamilies[family - kSceneFamilies];
        return {entries.begin(), entries.end()};
    }
    std::vector<NavigationEntry> entries;
    for (const SceneMode *mode : sceneModesOf(static_cast<SceneFamily>(family), state))
        entries.push_back({mode->label, mode->icon, PageId::Scene, mode->value});
    return entries;
}
