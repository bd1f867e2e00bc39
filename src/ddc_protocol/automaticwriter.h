#pragma once

#include <deque>
#include <optional>

#include <QDateTime>
#include <QObject>

#include "ddc_protocol/command.h"
#include "ddc_protocol/writebudget.h"

class CommandQueue;

/// Writes values that no user asked for just now, as the write budget allows: each is asked for first, compared, and
/// sent when it differs. One after the other, by the queue; of each command the newest value counts.
class AutomaticWriter : public QObject
{
    Q_OBJECT
public:
    explicit AutomaticWriter(CommandQueue &queue, QObject *parent = nullptr);

    /// Puts a value behind the others, or in the place of an older one of the same command.
    void want(Command command, int value);

Q_SIGNALS:
    /// A wish has ended; false when the monitor did not answer or did not take it.
    void settled(Command command, int value, bool ok);

    /// The day's budget of the monitor is used up, told once a day; what waits goes on tomorrow. The text says so.
    void dayIsUsedUp(const QString &text);

private:
    struct Wish
    {
        Command command;
        int value;
        bool wasAsked = false;
        bool wasSent = false;
    };

    void goOn();
    void wait(const WriteDecision &decision);
    void onSent(Command command, int value, bool ok);
    void settle(bool ok);
    WriteFacts factsOf(const Wish &wish) const;

    CommandQueue &m_queue;
    std::deque<Wish> m_wishes;
    bool m_waits = false; ///< for an answer, a write or a moment
    std::optional<QDateTime> m_last;
    QDate m_toldOn; ///< that the day is used up
};

/// How many automatic writes a monitor takes a day at most, by "Care/AutomaticWrites" in config.ini: a number, or -1
/// for as many as it takes.
std::optional<qint64> automaticWritesADay();

/// Stores how many; a negative number for as many as it takes. False when that could not be stored.
bool setAutomaticWritesADay(int count);
