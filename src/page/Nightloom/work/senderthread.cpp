#include "page/Nightloom/work/senderthread.h"

void SenderThread::startWork()
{
    wait();
    start(QThread::TimeCriticalPriority);
}

void SenderThread::report(int value)
{
    tell([this, value] { Q_EMIT progress(value); });
}
