#pragma once

#include <array>
#include <cstdint>

#include "ddc_protocol/command.h"

inline constexpr int kCommandCodes = 168;
inline constexpr int kCommandRows = 2 * kCommandCodes;
inline constexpr std::uint8_t kVendorCode = 0x99; ///< opens every command

/// A packet template: destination, source, length byte, vendor code, operation (3 write, 1 read), command code, zeros.
using CommandRow = std::array<std::uint8_t, 14>;
extern const std::array<CommandRow, kCommandRows> commandTable;

/// The place of a command code among the 168, counted from 0; -1 for a code that the monitor does not have.
int commandPlace(std::uint8_t code);

/// The row that writes a command.
COMMAND_set_Type writeRow(Command command);

/// The row that reads a command.
COMMAND_set_Type readRow(Command command);

/// The command code that a row carries.
std::uint8_t commandCode(COMMAND_set_Type row);
