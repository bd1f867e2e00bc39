#pragma once

#include <optional>
#include <span>
#include <vector>

#include "page/engine/pagetable.h"

class DeviceState;

// What can stand on the panel of the tray icon: sliders and options of the pages, by the pages' own tables.

inline constexpr int kTrayPlaces = 2;         ///< of the user's choice
inline constexpr int kTrayCaptionWidth = 118; ///< pixels

/// A control as the page that has it describes it.
struct TrayControl
{
    Command command;
    const char *label; ///< source text; also its name in the settings file
    Section section;
    int usual = 0; ///< of options: the one that stands beside the first, unless another is on
};

/// Brightness, contrast and volume.
std::vector<TrayControl> trayFixedControls(const DeviceState &state);

/// What the user can choose from for this monitor: nothing that another setting, the mode or a question can forbid.
std::vector<TrayControl> trayChoices(const DeviceState &state);

/// The stored choice for each place; the usual one where none is stored, or one that this monitor does not have.
std::vector<Command> storedTrayChoices(std::span<const TrayControl> choices);

/// False when they could not be stored.
bool storeTrayChoices(std::span<const TrayControl> choices, std::span<const Command> chosen);
