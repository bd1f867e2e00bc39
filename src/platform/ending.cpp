#include "platform/ending.h"

#include "platform/desk.h"

namespace platform {

void endProgram()
{
    desk().clock().end();
    desk().process().quit();
}

bool programEnds()
{
    return desk().clock().hasEnded();
}

} // namespace platform
