#pragma once

#include <optional>

#include <QDateTime>

// When a value may be written that no user asked for just now. Hot keys, followed programs and what is set on a page
// are never asked about here.

/// What an automatic write depends on.
struct WriteFacts
{
    int value = 0;                   ///< wished
    std::optional<int> told;         ///< by the monitor, a moment ago; nothing when it must be asked
    bool wasAsked = false;           ///< for this wish already
    std::optional<QDateTime> last;   ///< automatic write to any monitor
    qint64 today = 0;                ///< automatic writes to this monitor
    std::optional<qint64> aDay = {}; ///< at most so many; nothing for as many as it takes
};

enum class WriteStep {
    Ask,  ///< what the monitor has
    Send, ///< the value differs, and may go
    Done, ///< the monitor has the value already
    Drop, ///< the monitor does not answer
    Wait, ///< until the next moment: the budget of the second, or of the day, is used up
};

struct WriteDecision
{
    WriteStep step;
    std::optional<QDateTime> next = {}; ///< when to look again; with Wait only
    bool dayIsUsedUp = false;           ///< which the user is told
};

/// One automatic write a second.
inline constexpr qint64 kBetweenWrites = 1000; // ms

/// And so many a day and monitor, unless the user says otherwise.
inline constexpr qint64 kWritesADay = 2000;

/// What becomes of a wish now.
WriteDecision planWrite(const WriteFacts &facts, const QDateTime &now);
