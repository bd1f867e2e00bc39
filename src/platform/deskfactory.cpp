#include "platform/deskfactory.h"

#include <QtGlobal>

#include "platform/virtual/processdesk.h"
#ifdef Q_OS_WIN
#include "platform/win32/win32desk.h"
#endif

namespace platform {

std::unique_ptr<Desk> createDesk()
{
#ifdef Q_OS_WIN
    // An elevated program takes no orders from the environment, which any program of the same user can set: the
    // simulated desk reads and writes files that it names.
    std::unique_ptr<Desk> real = createWin32Desk();
    if (real->process().isUserAnAdmin() || qEnvironmentVariable("QUORVEL_DESK") != QLatin1String("virtual"))
        return real;
#endif
    return createVirtualDesk();
}

} // namespace platform
