#pragma once

#include <deque>
#include <map>
#include <optional>

#include <QDateTime>
#include <QObject>
#include <QString>

#include "ddc_protocol/command.h"
#include "ddc_protocol/writebudget.h"

class CommandQueue;

/// Writes values that no user asked for just now, as the write budget allows: each is asked for first, compared, and
/// sent when it differs. One after the other, by the queue; of each command the newest value counts. What waits when
/// another monitor comes into use was not meant for that one.
class AutomaticWriter : public QObject
{
    Q_OBJECT
public:
    explicit AutomaticWriter(CommandQueue &queue, QObject *parent = nullptr);

    /// Puts a value behind the others, or in the place of an older one of the same command.
    void want(Command command, int value);

    /// Writes a value that the user's own doing brings about, in place of one that waits: at once, past the budget, and
    /// not counted there.
    void wantNow(Command command, int value);

    /// Takes back what was wanted of a command and is not on its way yet. Nobody is told.
    void drop(Command command);

    /// Whether the monitor in use takes no more of them today.
    static bool isDayUsedUp();

Q_SIGNALS:
    /// A wish has ended; false when the monitor did not answer or did not take it, or another value came in between.
    void settled(Command command, int value, bool ok);

    /// The day's budget of the monitor is used up, told once a day; what waits goes on tomorrow. The text says so.
    void dayIsUsedUp(const QString &text);

private:
    struct Wish
    {
        Command command;
        int value;
        QString monitor;
        bool wasAsked = false;
    };

    /// What the first wish is at. Only what belongs to that leads on.
    enum class Step { Begins, Asks, Waits, Sends };

    void takeBack(Command command);
    void goOn();
    void setStep(Step step);
    void wait(const WriteDecision &decision);
    void onAnswered(Command command, bool told);
    void onSent(Command command, int value, bool ok);
    void onSentNow(Command command, int value, bool ok);
    void settle(bool ok);
    void dropOthers();
    WriteFacts factsOf(const Wish &wish) const;

    CommandQueue &m_queue;
    std::deque<Wish> m_wishes;
    std::map<Command, int> m_now; ///< on its way past the budget
    Step m_step = Step::Begins;
    unsigned m_steps = 0; ///< a moment that an earlier one waited for is none
    std::optional<QDateTime> m_last;
    QDate m_toldOn; ///< that the day is used up
};

/// What the user is told when the monitor's budget of today is used up.
QString dayIsUsedUpText();

/// How many automatic writes a monitor takes a day at most, by "Care/AutomaticWrites" in config.ini: a number, or -1
/// for as many as it takes.
std::optional<qint64> automaticWritesADay();

/// Stores how many; a negative number for as many as it takes. False when that could not be stored.
bool setAutomaticWritesADay(int count);
