#pragma once

#include <optional>

#include <QDateTime>

// When the window asks the monitor again for what it shows. Nothing here asks, waits or shows anything.

/// What the decision rests on.
struct ReconcileFacts
{
    bool isSeen = false;            ///< somebody can see the window
    bool isSearching = false;       ///< the session looks for monitors; whoever waits is told of its end
    bool isAsking = false;          ///< questions of the last step are not answered yet
    bool answers = true;            ///< the last request said so
    bool isWanted = false;          ///< something happened after which what is shown may not hold
    std::optional<QDateTime> stale; ///< when the display set-up changed or the computer woke last: handles may be stale
    std::optional<QDateTime> asked; ///< when the monitor was asked last, or fell silent
    int vainTries = 0;              ///< in a row in which something was not answered
};

/// What to do now, and when to look again; nothing until then, or until a fact changes.
struct ReconcileStep
{
    enum Action { Nothing, Search, Ask };
    Action action = Nothing;
    std::optional<QDateTime> lookAgain = {};
    bool operator==(const ReconcileStep &) const = default;
};

/// Stale handles come first: one search, a second after the last of the messages. Then what is in sight is asked for,
/// once for whatever happened. What was not answered is asked for again after 1, 2, 4 … at most 60 seconds while
/// somebody sees the window: a few times only where the monitor answers, for it may not know that code, and on and on
/// where it is silent.
ReconcileStep planReconciliation(const ReconcileFacts &facts, const QDateTime &now);
