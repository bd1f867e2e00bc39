#include "platform/desk.h"

#include <QtGlobal>

namespace platform {

static Desk *s_desk = nullptr;

Desk &desk()
{
    Q_ASSERT(s_desk);
    return *s_desk;
}

void installDesk(Desk *desk)
{
    s_desk = desk;
}

} // namespace platform
