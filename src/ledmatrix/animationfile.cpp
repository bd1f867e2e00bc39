#include "ledmatrix/animationfile.h"

#include <QDebug>
#include <QFile>
#include <QObject>

#include "files/wholefile.h"

namespace {

constexpr qsizetype kFrameBytes = 1050;

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
                       const std::function<void(int written)> &written)
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
        written(static_cast<int>(i) + 1);
    }
    return file.putInPlace(frames.join()) ? QString() : file.error();
}

ReadAnimation readAnimation(const QString &fileName)
{
    ReadAnimation animation;
    const WholeFile file = readWhole(fileName, kFrameBytes * kMaximumFrames);
    animation.error = file.exists ? file.error : QObject::tr("There is no such file.");
    if (!animation.error.isEmpty()) {
        logFailure(animation.error);
        return animation;
    }
    const qsizetype frames = file.bytes.size() / kFrameBytes;
    qDebug() << "Frame size:" << frames;
    for (qsizetype i = 0; i < frames; ++i)
        animation.frames.append(file.bytes.sliced(i * kFrameBytes, kFrameBytes));
    return animation;
}
