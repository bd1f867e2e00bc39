#pragma once

#include <span>
#include <vector>

#include "page/engine/pagetable.h"

class DeviceState;

// What can stand on the panel of the tray icon: sliders and options of the pages, by the pages' own tables.

inline constexpr int kTrayPlaces = 2;         ///< of the user's choice
inline constexpr int kTrayCaptionWidth = 126; ///< pixels

/// A control as the page that has it describes it.
struct TrayControl
{
    Command command;
    const char *label; ///< source text; also its name in the settings file
    Section section;
    int usual = 0; ///< of options: the one that stands beside the first, unless another is on
};

/// Which controls stand on the panel for a monitor: brightness, contrast and volume, and below them those of the user's
/// choice, a place each.
class TrayChoices
{
public:
    /// As they are stored; the usual one in a place for which none is stored, or one that this monitor does not have.
    explicit TrayChoices(const DeviceState &state);

    /// What the user can choose from: nothing that another setting, the mode or a question can forbid.
    std::span<const TrayControl> offered() const { return m_offered; }

    /// What was chosen for each place.
    std::span<const Command> chosen() const { return m_chosen; }

    /// All that stand on the panel, from top to bottom.
    std::vector<const TrayControl *> shown() const;

    /// Puts a control into a place, from 0; where the other place has it, they are exchanged. False when that could not
    /// be stored; it holds until the program ends then.
    [[nodiscard]] bool choose(std::size_t place, Command command);

private:
    const TrayControl &offer(Command command) const;

    std::vector<TrayControl> m_fixed;
    std::vector<TrayControl> m_offered;
    std::vector<Command> m_chosen;
};
