#include "sessionend.h"

#include <QCoreApplication>

#include "platform/nativemessage.h"

SessionEnd::SessionEnd(QObject *parent) : QObject(parent)
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
    if (native->wParam != 0 && !m_told) {
        m_told = true; // every window of the program is told
        Q_EMIT ends();
    }
    *result = 0;
    return true;
}
