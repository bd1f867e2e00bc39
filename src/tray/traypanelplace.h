#pragma once

#include <optional>

#include <QRect>

#include "platform/clock.h"

// Where the panel of the tray icon stands, and what a press on the icon means. Nothing here shows anything.

inline constexpr int kTrayPanelGap = 8; ///< pixels to the icon and to the edges of the screen

/// The place of a panel of this size: beside the icon, away from the edge of the screen at which the icon is, and
/// wholly in the available part of the screen. All in the same coordinates. A panel that is too big begins at the top
/// left.
QPoint placeTrayPanel(const QRect &icon, const QRect &available, const QSize &panel);

/// What is known when the icon is pressed.
struct TrayPressFacts
{
    bool isOpen = false;
    std::optional<platform::milliseconds> sinceOpened = {}; ///< since the panel was opened last
    std::optional<platform::milliseconds> sinceLeft = {};   ///< since it closed because the user went elsewhere
    platform::milliseconds doublePress = platform::milliseconds(400); ///< what the system takes for one
};

enum class TrayPress { Open, Close, ShowWindow };

/// The first of two presses opens the panel and the second shows the window in its place, however the tray tells of it.
/// A press that took the focus from the panel has closed it already; it must not open it again.
TrayPress meaningOfTrayPress(const TrayPressFacts &facts);
