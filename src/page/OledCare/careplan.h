#pragma once

#include <optional>

#include <QDateTime>

#include "platform/clock.h"

// When a panel's care is due, when the monitor is asked about it, and when the user may be reminded. Nothing here asks,
// waits or shows anything.

/// A look counts as use of the panel at most so much: what lies further back than that, the computer slept.
inline constexpr platform::milliseconds kCareLook = std::chrono::minutes(30);

/// How long "Later" keeps the reminder away.
inline constexpr platform::milliseconds kCarePutOff = std::chrono::hours(1);

/// What the decision rests on.
struct CareFacts
{
    std::optional<bool> isDue;       ///< as the monitor told last
    bool isRunning = false;          ///< as above
    std::optional<int> interval;     ///< hours of use from care to care
    bool isByItself = false;         ///< the monitor begins when it goes to standby
    qint64 used = 0;                 ///< seconds since the last care
    bool reminds = true;             ///< the user wants that
    std::optional<QDateTime> asked;  ///< when the monitor was asked last whether care is due or running
    std::optional<QDateTime> putOff; ///< until when the user wants no reminder
};

struct CareStep
{
    bool asks = false;    ///< the monitor, whether care is due or running
    bool reminds = false; ///< the user, as soon as the moment is good
    QDateTime lookAgain;  ///< unless a fact changes before
    bool operator==(const CareStep &) const = default;
};

/// How many seconds of use there are until the next care; 0 when it is due, nothing while the interval is not known.
std::optional<qint64> secondsLeft(const CareFacts &facts);

/// What the monitor told goes before what was counted.
bool isCareDue(const CareFacts &facts);

/// While care runs the monitor is asked every half minute. It is asked once an hour while it has not told whether care
/// is due, or said no though the hours are over, for it counts by itself. The user is reminded of a care that is due;
/// where the monitor begins by itself, only when it found no chance for the hours of a second interval.
CareStep planCare(const CareFacts &facts, const QDateTime &now);

/// Somebody at the computer, or nobody.
struct CarePresence
{
    platform::milliseconds sinceInput{0};
    bool isFullScreen = false;           ///< a program fills the screen, or nobody is logged on to see anything
    bool isElsewhere = false;            ///< another window came to the front since the last look
    std::optional<QDateTime> shown = {}; ///< since when the reminder has been there for somebody to see
};

enum class ReminderStep {
    Stay,   ///< as it is, shown or not
    Show,   ///< nobody is held up by it now
    Hide,   ///< it would cover a program
    PutOff, ///< nobody answered, though somebody was there
};

/// Whether nobody has been at the computer for a while.
bool isAway(const CarePresence &presence);

/// What becomes of a reminder that is wanted, looked at every ten seconds.
ReminderStep planReminder(const CarePresence &presence, const QDateTime &now);
