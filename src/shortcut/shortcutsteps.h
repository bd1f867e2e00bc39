#pragma once

#include <functional>
#include <optional>
#include <variant>

#include "ddc_protocol/command.h"

// What a hot key asks of the monitor, as data: nothing here talks to it.

/// The two keys of a function; the numbers are shortcutKeyCommand's directions.
enum class ShortcutKey { Plus = 0, Minus = 1 };

/// One write, and whether the keys rest after it.
struct ShortcutStep
{
    COMMAND_set_Type row;
    int value; ///< may be -2 after a read without an answer; its low 16 bits go out
    bool locks = true;
    bool operator==(const ShortcutStep &) const = default;
};

/// Asks the monitor for the value of a row; -1 when it does not answer. A rule steps on from that as from any value.
using ReadRow = std::function<int(COMMAND_set_Type)>;

/// Each key writes a value of its own.
struct FixedValues
{
    Command command;
    int plus;
    int minus;
};

/// What a value does that is stepped past its range.
enum class AtEnd { Stop, Wrap };

/// The keys step a value that runs from 0 to highest.
struct SteppedValue
{
    Command command;
    int step;
    int highest;
    AtEnd atEnd;
    std::optional<int> leftOut = {}; ///< a value that the keys step over
};

/// A rule of its own, see the functions below.
using OwnRule = ShortcutStep (*)(ShortcutKey key, const ReadRow &read);

using ShortcutRule = std::variant<FixedValues, SteppedValue, OwnRule>;

/// Evaluates a rule: reads what it needs, in its order, and tells what to write.
ShortcutStep shortcutStep(const ShortcutRule &rule, ShortcutKey key, const ReadRow &read);

// The game aids have a switch beside their values, and a round ends by switching the aid off. The step that ends it,
// and the one that begins the next, do not rest, so that the next press may follow at once.

/// Both keys move the display of the refresh rate round the corners, up or down.
ShortcutStep stepRefreshRate(ShortcutKey key, const ReadRow &read);

/// Plus goes through the shapes, minus through the colours.
ShortcutStep stepCrosshair(ShortcutKey key, const ReadRow &read);

/// Plus goes through the times, minus through the corners.
ShortcutStep stepStopwatch(ShortcutKey key, const ReadRow &read);

/// Plus goes through the lengths, minus through the corners.
ShortcutStep stepGameTime(ShortcutKey key, const ReadRow &read);
