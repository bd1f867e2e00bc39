#include "ledmatrix/animationfile.h"

#include <algorithm>

#include <QDebug>
#include <QFile>
#include <QSaveFile>

namespace {

constexpr qint64 kFrameBytes = 1050;

void logFailure(const QString &error)
{
    qDebug() << "Failed to open file:" << error;
}

} // namespace

QString appendFrame(const QString &fileName, const QByteArray &digits)
{
    QFile file(fileName);
    const QIODevice::OpenMode mode = file.exists() ? QIODevice::Append : QIODevice::WriteOnly;
    if (!file.open(mode | QIODevice::Text)) {
        logFailure(file.errorString());
        return file.errorString();
    }
    if (file.write(digits) != digits.size() || !file.flush())
        return file.errorString();
    return {};
}

QString writeAnimation(const QString &fileName, const QByteArrayList &frames,
                       const std::function<void(int written)> &written)
{
    if (frames.isEmpty()) { // then there is nothing to keep an old file for, and nothing to make a new one of
        QFile old(fileName);
        return !old.exists() || old.remove() ? QString() : old.errorString();
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        logFailure(file.errorString());
        return file.errorString();
    }
    for (qsizetype i = 0; i < frames.size(); ++i) {
        // Flushed each time: what fails only when the file is closed goes unnoticed.
        if (file.write(frames[i]) != frames[i].size() || !file.flush())
            return file.errorString();
        written(static_cast<int>(i) + 1);
    }
    return file.commit() ? QString() : file.errorString();
}

ReadAnimation readAnimation(const QString &fileName)
{
    ReadAnimation animation;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        animation.error = file.errorString();
        logFailure(animation.error);
        return animation;
    }
    const qint64 frames = std::min<qint64>(file.size() / kFrameBytes, kMaximumFrames);
    qDebug() << "Frame size:" << frames;
    for (qint64 i = 0; i < frames; ++i)
        animation.frames.append(file.read(kFrameBytes));
    return animation;
}
