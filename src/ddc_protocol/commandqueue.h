#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <span>
#include <thread>
#include <vector>

#include <QObject>

#include "ddc_protocol/command.h"
#include "ddc_protocol/valuewatch.h"
#include "ddc_protocol/waitingvalues.h"
#include "platform/clock.h"

/// Commands that must not hold up the window, carried by a thread of its own. The values of dragged sliders: of each
/// command only the newest waits, and the last one given is always sent. And questions: values that somebody wants to
/// know, asked for one at a time while nothing waits to be sent; what the monitor tells goes into the snapshot.
class CommandQueue : public QObject
{
    Q_OBJECT
public:
    explicit CommandQueue(QObject *parent = nullptr);
    ~CommandQueue() override; ///< sends what still waits; questions are dropped

    /// Puts a value in the queue, in place of an older one of the same command. It counts as wished from now on.
    void post(Command command, int value);

    /// As post, for what comes faster than a monitor should be written to: of each command at most one value goes in
    /// 120 ms, the newest; the last one given goes in any case, at once when somebody drains. Interface thread only.
    void postPaced(Command command, int value);

    /// Asks the monitor for a value, once, without retries that would hold up others. Nothing is logged. A monitor that
    /// is silent is asked nothing more of what waits.
    void ask(Command command);

    /// Asks for the scene block of an even mode in the same way, behind the values.
    void askBlock(int mode);

    /// Asks for many values, and for the scene block of a mode if one is given, at once: a monitor that is silent is
    /// asked for the first one only.
    void askAll(std::span<const Command> commands, std::optional<int> blockMode);

    /// Asks nothing more of what waits, whoever asked; it counts as not answered.
    void dropQuestions();

    /// Blocks until everything posted has been sent. Whoever sends a command directly calls this first, or a drag's
    /// last value would arrive behind it. Not waited for when the program ends: its window is not to be held up.
    void drain();

    /// Blocks until everything posted has been sent, or the time is over; false then. For those who end at once after.
    bool drainFor(platform::milliseconds limit);

    /// Whether nothing waits or is under way, neither a value nor a question.
    bool isIdle();

    /// Tells of every change in the snapshot, on the queue's owner's thread.
    ValueWatch &values() { return m_values; }

Q_SIGNALS:
    /// A value went to the monitor, or failed to. Emitted on the queue's thread.
    void sent(Command command, int value, bool ok);

    /// A value was asked for, and the monitor told it or not. Emitted on the queue's thread.
    void answered(Command command, bool told);

    /// The same for a scene block.
    void blockAnswered(bool told);

    /// These values, and a block or not, are not asked for any more: the monitor is silent, or they were dropped.
    /// Emitted on the queue's thread, or by whoever drops them.
    void gaveUp(const QList<Command> &commands, bool block);

    /// All questions were asked, or given up; what was told is in the snapshot, and so many were not answered. Emitted
    /// on the queue's thread, or by whoever drops them.
    void asked(int unanswered);

private:
    bool isSent() const { return m_waiting.isEmpty() && !m_sending; }
    void release(unsigned hold);
    void hurry();
    void giveUp(std::unique_lock<std::mutex> &lock);
    void run();
    void sendNext(std::unique_lock<std::mutex> &lock);
    bool hasQuestion() const { return !m_questions.empty() || m_blockQuestion; }
    void askNext(std::unique_lock<std::mutex> &lock);
    void askNextBlock(std::unique_lock<std::mutex> &lock);
    void noteAnswer(bool told, std::unique_lock<std::mutex> &lock);
    void tellAsked();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    WaitingValues m_waiting;
    std::vector<Command> m_questions;
    std::optional<int> m_blockQuestion; ///< its mode
    int m_unanswered = 0;               ///< of the questions since the last was told
    bool m_sending = false;
    bool m_asking = false;
    bool m_stop = false;
    ValueWatch m_values;
    std::thread m_thread;
};
