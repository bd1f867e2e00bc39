#include "page/engine/lockrules.h"

#include <algorithm>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "page/engine/labels.h"

namespace {

bool isMpcsFps(const DeviceState &state)
{
    return state.value(Command::SceneMode) == kMpcsFpsCustom;
}

bool isMpcsLd(const DeviceState &state)
{
    return state.value(Command::SceneMode) == kMpcsLdCustom;
}

constexpr LockRule kMotionLocks[] = {
    {OptionsOf{Command::MotionTech, 3, 5},
     isMpcsFps,
     LABEL("MPCS/ULL FPS offers the Ull levels only; the others need another scene mode."),
     {Command::SceneMode}},
    {OptionsOf{Command::MotionTech, 6, 8},
     isMpcsLd,
     LABEL("MPCS/LD leaves no room for the Ull levels; they need another scene mode."),
     {Command::SceneMode}},
};

template <typename IsMeant> const LockRule *findRule(std::span<const LockRule> rules, const IsMeant &isMeant)
{
    const auto rule = std::find_if(rules.begin(), rules.end(), isMeant);
    return rule == rules.end() ? nullptr : &*rule;
}

bool isAbout(const LockRule &rule, const QString &slider)
{
    const auto *named = std::get_if<SlidersNamed>(&rule.controls);
    return named && slider.startsWith(QLatin1String(named->prefix));
}

} // namespace

const LockRule *ruleFor(std::span<const LockRule> rules, const QString &slider)
{
    return findRule(rules, [&](const LockRule &rule) { return isAbout(rule, slider); });
}

const LockRule *lockOf(std::span<const LockRule> rules, const QString &slider, const DeviceState &state)
{
    return findRule(rules, [&](const LockRule &rule) { return isAbout(rule, slider) && rule.locks(state); });
}

const LockRule *lockOf(std::span<const LockRule> rules, Command group, int option, const DeviceState &state)
{
    return findRule(rules, [&](const LockRule &rule) {
        const auto *options = std::get_if<OptionsOf>(&rule.controls);
        return options && options->command == group && option >= options->first && option <= options->last &&
               rule.locks(state);
    });
}

bool areLocksKnown(std::span<const LockRule> rules, Command group, const DeviceState &state)
{
    return !findRule(rules, [&](const LockRule &rule) {
        const auto *options = std::get_if<OptionsOf>(&rule.controls);
        return options && options->command == group && !shownValue(state, rule.target.command);
    });
}

std::optional<int> shownValue(const DeviceState &state, Command command)
{
    if (!state.isKnown(command) && !state.isDoubted(command))
        return {};
    return state.value(command);
}

std::span<const LockRule> motionLocks()
{
    return kMotionLocks;
}
