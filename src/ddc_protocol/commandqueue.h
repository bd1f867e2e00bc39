#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include <QObject>

#include "ddc_protocol/commandtable.h"
#include "platform/clock.h"

/// Commands that must not hold up the window, carried by a thread of its own. The values of dragged sliders: of each
/// command only the newest waits, and the last one given is always sent. And questions: values that a page does not
/// know yet, asked for while nothing waits to be sent.
class CommandQueue : public QObject
{
    Q_OBJECT
public:
    explicit CommandQueue(QObject *parent = nullptr);
    ~CommandQueue() override; ///< sends what still waits; questions are dropped

    /// Puts a value in the queue, in place of an older one of the same command.
    void post(Command command, int value);

    /// Asks the monitor for a value, once, without retries that would hold up others. Nothing is logged.
    void ask(Command command);

    /// Blocks until everything posted has been sent. Whoever sends a command directly calls this first, or a drag's
    /// last value would arrive behind it. Not waited for when the program ends: its window is not to be held up.
    void drain();

    /// Blocks until everything posted has been sent, or the time is over; false then. For those who end at once after.
    bool drainFor(platform::milliseconds limit);

Q_SIGNALS:
    /// A value went to the monitor, or failed to. Emitted on the queue's thread.
    void sent(Command command, int value, bool ok);

    /// The monitor told a value; a question without an answer emits nothing. Emitted on the queue's thread.
    void answered(Command command, int value);

private:
    struct Pending
    {
        Command command;
        int value;
    };

    bool isIdle() const { return m_pending.empty() && !m_sending; }
    void run();
    void sendNext(std::unique_lock<std::mutex> &lock);
    void askNext(std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::vector<Pending> m_pending;
    std::vector<Command> m_questions;
    bool m_sending = false;
    bool m_stop = false;
    std::thread m_thread;
};
