#include "navigation.h"

#include <QtGlobal>

#include "ddc_protocol/scenemodes.h"

#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)

namespace {

constexpr NavigationFamily kFamilyTable[kFamilies] = {
    {LABEL("Scene"), "scene"},           {LABEL("Mac View"), "mac_view"},     {LABEL("Color Space"), "color_space"},
    {LABEL("Print Mode"), "print_mode"}, {LABEL("Office Aid"), "office_aid"}, {LABEL("Game Aid"), "game_aid"},
    {LABEL("Oled Care"), "oled_care"},   {LABEL("Night Loom"), "night_loom"}, {LABEL("Basic"), "basic"},
};

constexpr NavigationEntry kOfficeAid[] = {
    {LABEL("Paper"), "office_paper"},
    {LABEL("Alignment"), "alignment"},
    {LABEL("Ruler"), "ruler"},
    {LABEL("Alignment Aid"), "alignment_aid"},
    {LABEL("Composition"), "composition"},
    {LABEL("Eyeshield Remind"), "eyeshield_remind"},
    {LABEL("AI Dual Mode"), "ai_dual_mode"},
};
constexpr NavigationEntry kGameAid[] = {
    {LABEL("Game Aid"), "game_aid"},
    {LABEL("Picture Enhance"), "picture_enhance"},
    {LABEL("Emberline"), "emberline"},
};
constexpr NavigationEntry kOledCare[] = {{LABEL("Care Content"), "care_content"}};
constexpr NavigationEntry kNightLoom[] = {
    {LABEL("Animate Mode"), "led_animate"},   {LABEL("Text Mode"), "led_text"},     {LABEL("Music Mode"), "led_music"},
    {LABEL("System Settings"), "led_system"}, {LABEL("Custom Mode"), "led_custom"}, {LABEL("Game VS"), "game_vs"},
};
constexpr NavigationEntry kBasic[] = {
    {LABEL("System Settings"), "system_settings"}, {LABEL("Shortcut Key"), "shortcut_key"},
    {LABEL("Scence Follow"), "scence_follow"},     {LABEL("Service Settings"), "service_settings"},
    {LABEL("Tool Settings"), "tool_settings"},     {LABEL("I/O Settings"), "io_settings"},
};

constexpr std::span<const NavigationEntry> kPlainFamilies[] = {kOfficeAid, kGameAid, kOledCare, kNightLoom, kBasic};

} // namespace

std::span<const NavigationFamily, kFamilies> navigationFamilies()
{
    return kFamilyTable;
}

std::vector<NavigationEntry> navigationEntries(int family, const DeviceState &state)
{
    if (family >= kSceneFamilies) {
        const auto &entries = kPlainFamilies[family - kSceneFamilies];
        return {entries.begin(), entries.end()};
    }
    std::vector<NavigationEntry> entries;
    for (const SceneMode *mode : sceneModesOf(static_cast<SceneFamily>(family), state))
        entries.push_back({mode->label, mode->icon, mode->value});
    return entries;
}
