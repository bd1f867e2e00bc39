#include "elevation.h"

#include <QDir>

#include "platform/desk.h"

static constexpr char kElevatedArgument[] = "runas";
static constexpr std::intptr_t kShellSuccess = 32; // results above it

bool handedToElevatedCopy(int argc, char **argv)
{
    platform::Process &process = platform::desk().process();
    if (process.isUserAnAdmin())
        return false;
    if (argc > 1 && qstrcmp(argv[1], kElevatedArgument) == 0)
        return false; // this is the copy: asking again would never end
    // Without a folder the system would start it in its own, and settings and lists would seem lost.
    return process.shellExecuteRunas(process.ownFile(), QLatin1String(kElevatedArgument), QDir::currentPath()) >
           kShellSuccess;
}
