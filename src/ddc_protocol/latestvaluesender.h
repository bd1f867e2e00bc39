#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include <QObject>

#include "ddc_protocol/commandtable.h"

/// Sends the values of dragged sliders from a thread of its own, so that a drag stays smooth while the monitor takes
/// its time: of each command only the newest value waits, and the last one given is always sent.
class LatestValueSender : public QObject
{
    Q_OBJECT
public:
    explicit LatestValueSender(QObject *parent = nullptr);
    ~LatestValueSender() override; ///< sends what still waits

    /// Puts a value in the queue, in place of an older one of the same command.
    void post(Command command, int value);

    /// Blocks until everything posted has been sent. Whoever sends a command directly calls this first, or a drag's
    /// last value would arrive behind it.
    void drain();

Q_SIGNALS:
    /// A value went to the monitor, or failed to. Emitted on the sending thread.
    void sent(Command command, int value, bool ok);

private:
    struct Pending
    {
        Command command;
        int value;
    };

    void run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::vector<Pending> m_pending;
    bool m_sending = false;
    bool m_stop = false;
    std::thread m_thread;
};
