#include "platform/win32/win32presence.h"

#include <windows.h>

#include <shellapi.h>

namespace platform {

static_assert(static_cast<int>(NotificationState::NotPresent) == QUNS_NOT_PRESENT);
static_assert(static_cast<int>(NotificationState::App) == QUNS_APP);

namespace {

/// Milliseconds from one of the system's counts to another, which wrap together. An input that some program made may
/// bear a count that is still to come: it was made just now, not 49 days ago.
constexpr DWORD passed(DWORD from, DWORD to)
{
    constexpr DWORD kAhead = 60'000; // ms
    return from - to <= kAhead ? 0 : to - from;
}
static_assert(passed(5, 70'000) == 69'995 && passed(70'000, 69'990) == 0 && passed(MAXDWORD - 2, 4) == 7);

} // namespace

std::optional<milliseconds> Win32Presence::sinceInput()
{
    LASTINPUTINFO last{sizeof last, 0};
    if (!GetLastInputInfo(&last))
        return std::nullopt;
    return milliseconds(passed(last.dwTime, GetTickCount()));
}

std::optional<NotificationState> Win32Presence::notificationState()
{
    QUERY_USER_NOTIFICATION_STATE state = QUNS_ACCEPTS_NOTIFICATIONS;
    if (FAILED(SHQueryUserNotificationState(&state)))
        return std::nullopt;
    return static_cast<NotificationState>(state);
}

} // namespace platform
