#include "page/Nightloom/animationfile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kFrameBytes = 1050;

void logFailure(const QString &error)
{
    qDebug() << "Failed to open file:" << error;
}

/// One step, so that no moment is left in which neither file is there.
QString replaceFile(const QString &newFile, const QString &fileName)
{
    const QFileInfo old(fileName);
    if (old.exists() && (!old.isFile() || !old.isWritable()))
        return QObject::tr("The file is write-protected.");
    std::error_code error;
    std::filesystem::rename(newFile.toStdU16String(), fileName.toStdU16String(), error);
    return error ? QString::fromLocal8Bit(error.message()) : QString();
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
    const QString part = fileName + QStringLiteral(".part");
    QFile::remove(part);
    QString error;
    for (qsizetype i = 0; i < frames.size() && error.isEmpty(); ++i) {
        error = appendFrame(part, frames[i]);
        if (error.isEmpty())
            written(static_cast<int>(i) + 1);
    }
    if (error.isEmpty())
        error = replaceFile(part, fileName);
    if (!error.isEmpty())
        QFile::remove(part);
    return error;
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
