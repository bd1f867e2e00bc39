#pragma once

#include <map>
#include <optional>
#include <vector>

#include <QDateTime>

#include "ddc_protocol/command.h"
#include "platform/clock.h"

/// The values that wait to be sent, of each command only the newest, in the order in which the commands came. Guarded
/// by its owner.
class WaitingValues
{
public:
    struct Value
    {
        Command command;
        int value;
    };

    /// A pause that a value waits for.
    struct Hold
    {
        unsigned number;
        platform::milliseconds pause;
    };

    /// Puts a value in, in place of an older one of its command. It may go.
    void put(Command command, int value);

    /// As put, but of each command at most one value goes in 120 ms. The pause that begins for it, at the end of which
    /// it is to be released; nothing when none does.
    std::optional<Hold> putPaced(Command command, int value, const QDateTime &now);

    /// What waits for that pause may go.
    void release(unsigned hold);

    /// Nothing waits for its pause any more.
    void releaseAll();

    bool isEmpty() const { return m_entries.empty(); }

    /// Whether a value may go.
    bool hasReady() const;

    /// Takes out the first that may go; there must be one.
    Value takeReady();

private:
    struct Entry
    {
        Value value;
        unsigned hold = 0; ///< the pause that it waits for; 0 for none

        static bool mayGo(const Entry &entry) { return entry.hold == 0; }
    };

    Entry *find(Command command);

    std::vector<Entry> m_entries;
    std::map<Command, QDateTime> m_nextTimes; ///< when the next paced value may go
    unsigned m_holds = 0;
};
