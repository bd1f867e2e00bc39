#pragma once

#include <optional>

#include "platform/clock.h"

namespace platform {

/// What the system says of whether the user may be shown something now (QUERY_USER_NOTIFICATION_STATE).
enum class NotificationState {
    NotPresent = 1,   ///< a screen saver runs, or the session is locked or another user's
    Busy = 2,         ///< a program fills the screen
    FullScreen3D = 3, ///< a game fills it
    Presentation = 4, ///< the user gives a talk
    Accepts = 5,
    QuietTime = 6, ///< the first hour after an installation
    App = 7
};

/// Whether somebody is at the computer, and what he would not want covered. Interface thread.
class Presence
{
public:
    virtual ~Presence() = default;

    /// How long ago somebody used keyboard or mouse (GetLastInputInfo, GetTickCount); nothing when the call fails.
    virtual std::optional<milliseconds> sinceInput() = 0;

    /// SHQueryUserNotificationState; nothing when the call fails.
    virtual std::optional<NotificationState> notificationState() = 0;
};

} // namespace platform
