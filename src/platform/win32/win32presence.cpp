#include "platform/win32/win32presence.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

static_assert(static_cast<int>(NotificationState::NotPresent) == QUNS_NOT_PRESENT);
static_assert(static_cast<int>(NotificationState::App) == QUNS_APP);

std::optional<milliseconds> Win32Presence::sinceInput()
{
    LASTINPUTINFO last{sizeof last, 0};
    if (!GetLastInputInfo(&last))
        return std::nullopt;
    return milliseconds(GetTickCount() - last.dwTime); // both wrap together
}

std::optional<NotificationState> Win32Presence::notificationState()
{
    QUERY_USER_NOTIFICATION_STATE state = QUNS_ACCEPTS_NOTIFICATIONS;
    if (FAILED(SHQueryUserNotificationState(&state)))
        return std::nullopt;
    return static_cast<NotificationState>(state);
}

} // namespace platform
