#pragma once

#include <optional>
#include <vector>

#include <QRect>
#include <QString>

#include "platform/displays.h"

/// A screen that windows can be arranged on.
struct SplitScreen
{
    QString name;   ///< the monitor's own; the system's name of the display where it has none
    QRect bounds;   ///< in pixels of the desktop
    QRect workArea; ///< what windows may fill of it
    bool operator==(const SplitScreen &) const = default;

    /// What its layouts are kept under: name and resolution.
    QString key() const;
};

/// The screen that a display is; nothing for one that is gone.
std::optional<SplitScreen> splitScreenOf(platform::DisplayHandle display);

/// All of them, in the system's order.
std::vector<SplitScreen> splitScreens();
