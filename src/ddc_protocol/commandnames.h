#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "ddc_protocol/command.h"

/// What a command is called, in rows of the pages as in a list of errors, and which monitors have it.
struct CommandName
{
    Command command;
    const char *label; ///< source text
    std::optional<Capability> needs = {};
    bool isReadable = true;
};

/// All commands that the program uses, by code.
std::span<const CommandName> commandNames();

/// The row of a command; an empty name where the program has none.
const CommandName &nameOf(Command command);

/// The translated name of a command; one that the program does not use is told by its code.
QString commandName(Command command);

/// The commands whose values a monitor of the model in use can tell.
std::vector<Command> readableCommands();
