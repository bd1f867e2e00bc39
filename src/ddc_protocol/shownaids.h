#pragma once

#include <optional>

#include "ddc_protocol/command.h"

/// The switch of the game aid that the monitor shows as soon as it takes a value of this command: whoever chooses a
/// shape, a time, a length or a corner wants to see it, and the hot keys have no other way to bring an aid back.
std::optional<Command> switchedOnBy(Command command);
