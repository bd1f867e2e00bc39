#include "tray/traypanelchoices.h"

#include <algorithm>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/settingsstore.h"
#include "page/BasicSetting/systemtable.h"
#include "page/Game/picturetable.h"
#include "page/Scene/scenetable.h"

namespace {

constexpr const char *kKeys[kTrayPlaces] = {"TrayPanel/First", "TrayPanel/Second"};
constexpr Command kUsualChoices[kTrayPlaces] = {Command::LowBlueLight, Command::NightVision};
constexpr Command kFixed[] = {Command::Brightness, Command::Contrast, Command::AudioVolume};

struct Offer
{
    Command command;
    int usual = 0;
};
constexpr Offer kOffers[] = {
    {Command::LowBlueLight}, {Command::NightVision, 3}, // Auto-L1: the monitor chooses when
    {Command::Sharpness},    {Command::BlackLevel},     {Command::ContrastEnhance}, {Command::SuperResolution},
    {Command::HaloControl},  {Command::LightSensor, 1}, {Command::Hdr, 1},          {Command::AudioMute, 1},
};

std::optional<TrayControl> findIn(const Section &section, Command command, const DeviceState &state)
{
    if (const auto *group = std::get_if<OptionGroup>(&section)) {
        if (group->command == command && state.has(group->needs)) {
            OptionGroup two = *group; // of its options two are to be seen at a time: off and another
            two.look = GroupLook::Switch;
            return TrayControl{command, group->label, two};
        }
    } else if (const auto *grid = std::get_if<SliderGrid>(&section)) {
        for (const SliderSpec &spec : grid->sliders) {
            if (spec.command == command && state.has(spec.needs))
                return TrayControl{command, spec.caption, SliderGrid{nullptr, 1, kTrayCaptionWidth, {&spec, 1}}};
        }
    }
    return {};
}

std::optional<TrayControl> findIn(std::span<const Section> sections, Command command, const DeviceState &state)
{
    for (const Section &section : sections) {
        if (auto found = findIn(section, command, state))
            return found;
    }
    return {};
}

std::optional<TrayControl> findOnPages(Command command, const DeviceState &state)
{
    if (auto found = findIn(sceneSections(), command, state))
        return found;
    for (const std::span<const PanelSpec> panels : {picturePanels(), systemPanels()}) {
        for (const PanelSpec &panel : panels) {
            if (!isOffered(panel, state))
                continue;
            if (auto found = findIn(panel.sections, command, state))
                return found;
        }
    }
    return {};
}

/// The usual choice where a place has none, or where both have the same.
std::vector<Command> storedChoices(std::span<const TrayControl> offered)
{
    std::vector<Command> chosen(std::begin(kUsualChoices), std::end(kUsualChoices));
    for (std::size_t place = 0; place < chosen.size(); ++place) {
        const QString stored = settingsString(QLatin1String(kKeys[place]), {}, false, QLatin1String(kConfigFile));
        const auto found = std::ranges::find_if(
            offered, [&](const TrayControl &control) { return stored == QLatin1String(control.label); });
        if (found != offered.end())
            chosen[place] = found->command;
    }
    return chosen[0] != chosen[1] ? chosen : std::vector(std::begin(kUsualChoices), std::end(kUsualChoices));
}

} // namespace

TrayChoices::TrayChoices(const DeviceState &state)
{
    for (const Command command : kFixed)
        m_fixed.push_back(*findOnPages(command, state));
    for (const Offer &offer : kOffers) {
        if (auto found = findOnPages(offer.command, state)) {
            found->usual = offer.usual;
            m_offered.push_back(*found);
        }
    }
    m_chosen = storedChoices(m_offered);
}

const TrayControl &TrayChoices::offer(Command command) const
{
    return *std::ranges::find(m_offered, command, &TrayControl::command);
}

std::vector<const TrayControl *> TrayChoices::shown() const
{
    std::vector<const TrayControl *> controls;
    for (const TrayControl &control : m_fixed)
        controls.push_back(&control);
    for (const Command command : m_chosen)
        controls.push_back(&offer(command));
    return controls;
}

bool TrayChoices::choose(std::size_t place, Command command)
{
    const auto elsewhere = std::ranges::find(m_chosen, command);
    if (elsewhere != m_chosen.end())
        *elsewhere = m_chosen[place];
    m_chosen[place] = command;
    QList<QPair<QString, QVariant>> settings;
    for (std::size_t i = 0; i < m_chosen.size(); ++i)
        settings.append({QLatin1String(kKeys[i]), QLatin1String(offer(m_chosen[i]).label)});
    return storeSettings(settings);
}
