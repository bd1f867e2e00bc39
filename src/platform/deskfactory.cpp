#include "platform/deskfactory.h"

#include <QtGlobal>

#include "platform/virtual/virtualplatform.h"
#ifdef Q_OS_WIN
#include "platform/win32/win32desk.h"
#endif

namespace platform {

std::unique_ptr<Desk> createDesk()
{
#ifdef Q_OS_WIN
    if (qEnvironmentVariable("QUORVEL_DESK") != QLatin1String("virtual"))
        return createWin32Desk();
#endif
    return createVirtualDesk();
}

} // namespace platform
