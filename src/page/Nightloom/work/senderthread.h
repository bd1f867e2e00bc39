#pragma once

#include "platform/joinedthread.h"

/// A thread that works for the accessory: it goes ahead of everything else, and tells how far it is. Who derives from
/// it waits for its end before what it works on goes.
class SenderThread : public JoinedThread
{
    Q_OBJECT
public:
    using JoinedThread::JoinedThread;

Q_SIGNALS:
    /// Percent, and what else a work says of itself by numbers of its own.
    void progress(int value);

protected:
    /// Starts the thread, whose work before has ended. It may be on its last steps out of run, where a start would be
    /// lost.
    void startWork();

    /// Tells the progress, behind all that was told before. For the thread itself.
    void report(int value);
};
