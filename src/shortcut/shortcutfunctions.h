#pragma once

#include <optional>
#include <span>

#include "ddc_protocol/devicestate.h"
#include "shortcut/shortcutsteps.h"

/// A monitor function that keys can be bound to.
struct ShortcutFunction
{
    const char *name; ///< source text, to be translated in the context QObject
    ShortcutRule rule;
    std::optional<Capability> needs = {};
};

/// Every function; its place is its number, which settings files hold.
std::span<const ShortcutFunction> shortcutFunctions();

/// The functions that a monitor has: the first ones, so that each keeps its number.
std::span<const ShortcutFunction> shortcutFunctionsOf(const DeviceState &state);
