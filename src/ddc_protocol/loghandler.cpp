#include "ddc_protocol/loghandler.h"

#include <QFile>
#include <QMutex>
#include <QTextStream>

#include "files/wholefile.h"
#include "platform/desk.h"

static QString levelWord(QtMsgType type)
{
    switch (type) {
    case QtWarningMsg:
        return QStringLiteral("Warning: ");
    case QtCriticalMsg:
        return QStringLiteral("Critical:"); // no blank at its end: log readers know it so
    case QtFatalMsg:
        return QStringLiteral("Fatal: ");
    case QtDebugMsg:
    case QtInfoMsg:
        break;
    }
    return QStringLiteral("Debug: ");
}

void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static QMutex mutex;
    const QMutexLocker lock(&mutex);
    const QDateTime now = platform::desk().clock().now();
    const QString source = QStringLiteral("(%1) L:(%2)").arg(QString::fromUtf8(context.file)).arg(context.line);
    // Joined by hand: a message may itself hold "%1".
    const QString line = levelWord(type) + QLatin1Char(' ') + source + QLatin1String(" \t") +
                         now.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz")) + QLatin1String(" \t") + text;

    QFile file;
    if (!openToAppend(
            file,
            QStringLiteral("./%1_%2.log").arg(QStringLiteral("QUORVEL"), now.toString(QStringLiteral("yyyy-MM-dd")))))
        return;
    QTextStream stream(&file);
    stream << line << "\r\n";
    stream.flush();
}
