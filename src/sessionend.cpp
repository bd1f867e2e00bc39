#include "sessionend.h"

#include <utility>

#include <QCoreApplication>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/writecounts.h"
#include "platform/ending.h"
#include "platform/nativemessage.h"

static constexpr platform::milliseconds kLastValues{1500}; // the system gives the whole program about 5 s

SessionEnd::SessionEnd(CommandQueue &queue, std::function<void()> stopAccessory, QObject *parent)
    : QObject(parent), m_queue(queue), m_stopAccessory(std::move(stopAccessory))
{
    qApp->installNativeEventFilter(this);
}

SessionEnd::~SessionEnd()
{
    if (qApp)
        qApp->removeNativeEventFilter(this);
}

bool SessionEnd::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result)
{
    if (eventType != platform::kNativeEventType)
        return false;
    const auto *native = static_cast<const platform::NativeMessage *>(message);
    if (native->message == platform::kMessageQueryEndSession) {
        *result = 1;
        return true;
    }
    if (native->message != platform::kMessageEndSession)
        return false;
    if (native->wParam != 0 && !std::exchange(m_hasEnded, true)) // every window of the program is told
        end();
    *result = 0;
    return true;
}

void SessionEnd::end()
{
    platform::endProgram();
    m_stopAccessory();
    m_queue.drainFor(kLastValues);
    writeCounts.store();
}
