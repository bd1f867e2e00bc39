#include "relaunch.h"

#include <QDebug>

#include "platform/desk.h"
#include "singleapplication.h"

bool relaunchAndQuit()
{
    auto *application = qobject_cast<SingleApplication *>(QCoreApplication::instance());
    if (application)
        application->stopServing(); // or the copy would announce itself to this instance and never serve itself
    platform::Process &process = platform::desk().process();
    if (process.startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1),
                              QString())) {
        process.quit();
        return true;
    }
    qWarning() << "The program could not be restarted.";
    if (application)
        application->serveAgain();
    return false;
}

QString notRestarted()
{
    return QObject::tr("The program could not be restarted. It goes on as it was.");
}
