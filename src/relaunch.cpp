#include "relaunch.h"

#include <QDebug>

#include "ddc_protocol/settingsstore.h"
#include "platform/desk.h"
#include "platform/ending.h"
#include "singleapplication.h"

bool relaunchAndQuit()
{
    if (platform::programEnds()) // what comes back while it ends must not bring it back
        return true;
    auto *application = qobject_cast<SingleApplication *>(QCoreApplication::instance());
    if (application)
        application->stopServing(); // or the copy would announce itself to this instance and never serve itself
    platform::Process &process = platform::desk().process();
    if (process.startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1),
                              QString())) {
        platform::endProgram();
        return true;
    }
    qWarning() << "The program could not be restarted.";
    if (application)
        application->serveAgain();
    return false;
}

Relaunch relaunchWith(const QString &key, const QVariant &value)
{
    const QString fileName = QString::fromLatin1(kConfigFile);
    const QString before = settingsString(key, {}, false, fileName);
    if (!storeSetting(key, value))
        return Relaunch::NotStored;
    if (relaunchAndQuit())
        return Relaunch::Begins;
    settingsString(key, before, true, fileName);
    return Relaunch::NotStarted;
}

QString notRestarted()
{
    return QObject::tr("The program could not be restarted. It goes on as it was.");
}
