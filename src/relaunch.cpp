#include "relaunch.h"

#include <QCoreApplication>

#include "platform/desk.h"

void relaunchAndQuit()
{
    platform::desk().process().startDetached(QCoreApplication::applicationFilePath(),
                                             QCoreApplication::arguments().mid(1), QString());
    platform::desk().process().quit();
}
