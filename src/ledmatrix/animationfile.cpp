#include "ledmatrix/animationfile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QObject>

#include "files/wholefile.h"

namespace {

void logFailure(const QString &error)
{
    qDebug() << "Failed to open file:" << error;
}

} // namespace

QString appendFrame(const QString &fileName, const QByteArray &digits)
{
    QString error = appendTo(fileName, digits);
    if (!error.isEmpty())
        logFailure(error);
    return error;
}

QString writeAnimation(const QString &fileName, const QByteArrayList &frames,
                       const std::function<bool(int written)> &goesOn)
{
    if (frames.isEmpty()) { // then there is nothing to keep an old file for, and nothing to make a new one of
        QFile old(fileName);
        return !old.exists() || old.remove() ? QString() : old.errorString();
    }
    Replacement file(fileName);
    if (!file.open()) {
        logFailure(file.error());
        return file.error();
    }
    for (qsizetype i = 0; i < frames.size(); ++i) {
        if (!file.write(frames[i]))
            return file.error();
        if (!goesOn(static_cast<int>(i) + 1))
            return QStringLiteral("cancelled");
    }
    return file.putInPlace(frames.join()) ? QString() : file.error();
}

ReadAnimation readAnimation(const QString &fileName, qint64 frameBytes, qint64 most)
{
    ReadAnimation animation;
    const WholeFile file = readWhole(fileName, frameBytes * most);
    animation.error = file.exists ? file.error : QObject::tr("There is no such file.");
    if (!animation.error.isEmpty()) {
        logFailure(animation.error);
        return animation;
    }
    animation.framesInFile = QFileInfo(fileName).size() / frameBytes;
    const qint64 frames = file.bytes.size() / frameBytes;
    qDebug() << "Frame size:" << frames;
    for (qint64 i = 0; i < frames; ++i)
        animation.frames.append(file.bytes.sliced(i * frameBytes, frameBytes));
    return animation;
}
