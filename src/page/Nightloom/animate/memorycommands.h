#pragma once

#include <iterator>

#include "ddc_protocol/command.h"
#include "ledmatrix/devicememory.h"

/// What the monitor is told of each memory, 1 when it is played and 0 when not.
inline constexpr Command kMemoryCommands[] = {Command::AccessoryMode1, Command::AccessoryMode2, Command::AccessoryMode3,
                                              Command::AccessoryStandby, Command::AccessoryPowerOff};
static_assert(std::size(kMemoryCommands) == std::size(kAnimationMemories));
