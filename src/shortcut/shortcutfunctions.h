#pragma once

#include <optional>
#include <span>
#include <vector>

#include "ddc_protocol/command.h"
#include "shortcut/shortcutsteps.h"

class DeviceState;

/// A monitor function that keys can be bound to.
struct ShortcutFunction
{
    int number;       ///< which settings files hold: never given twice, never changed
    const char *name; ///< source text, to be translated in the context QObject
    ShortcutRule rule;
    std::optional<Capability> needs = {}; ///< of the monitor; nothing for a function of every monitor
};

/// Every function, in the order in which users see them.
std::span<const ShortcutFunction> shortcutFunctions();

/// A function by its number; null when there is none.
const ShortcutFunction *shortcutFunction(int number);

/// Those of a list that a monitor has, in the same order.
std::vector<const ShortcutFunction *> shortcutFunctionsOf(const DeviceState &state,
                                                          std::span<const ShortcutFunction> of = shortcutFunctions());
