#include "files/wholefile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QRandomGenerator>

#include "platform/desk.h"

namespace {

constexpr char kScratchSuffix[] = ".new";
constexpr int kScratchLetters = 6; // between the file's name and the suffix
constexpr int kScratchTries = 10;
constexpr qint64 kForgottenAfter = 60; // s; no save takes that long

platform::Files &files()
{
    return platform::desk().files();
}

QString systemError()
{
    return qt_error_string(static_cast<int>(files().lastError()));
}

bool openBy(QFile &file, const QString &fileName, platform::FileAccess access, QIODevice::OpenMode mode)
{
    const int descriptor = files().open(fileName, access);
    return descriptor >= 0 && file.open(descriptor, mode, QFileDevice::AutoCloseHandle);
}

QString randomName(const QString &fileName)
{
    QString letters;
    for (int i = 0; i < kScratchLetters; ++i)
        letters += QChar(u'a' + static_cast<char16_t>(QRandomGenerator::global()->bounded(26)));
    return fileName + QLatin1Char('.') + letters + QLatin1String(kScratchSuffix);
}

/// Scratch files whose writer was killed, and what the toolkit puts beside them while it writes: their lock, and a file
/// of its own that was to take their place.
void removeForgotten(const QFileInfo &file)
{
    const QString start = file.fileName() + QLatin1Char('.');
    const QString scratch = QLatin1String(kScratchSuffix) + QLatin1Char('.');
    const QDateTime before = QDateTime::currentDateTime().addSecs(-kForgottenAfter);
    const QFileInfoList others = file.dir().entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo &other : others) {
        const QString name = other.fileName();
        const QString end = name.mid(start.size() + kScratchLetters) + QLatin1Char('.');
        if (name.startsWith(start) && end.startsWith(scratch) && other.lastModified() < before)
            QFile::remove(other.filePath());
    }
}

} // namespace

WholeFile readWhole(const QString &fileName, qint64 maximum)
{
    WholeFile result;
    result.exists = QFileInfo::exists(fileName) || files().isLink(fileName);
    QFile file;
    if (!openBy(file, fileName, platform::FileAccess::Read, QIODevice::ReadOnly)) {
        if (result.exists)
            result.error = systemError();
        return result;
    }
    result.exists = true;
    result.bytes = file.read(maximum);
    result.more = !file.atEnd();
    if (file.error() != QFileDevice::NoError)
        result.error = file.errorString();
    return result;
}

Replacement::Replacement(const QString &fileName) : m_fileName(fileName)
{
}

Replacement::~Replacement()
{
    m_file.close();
    if (!m_scratch.isEmpty())
        QFile::remove(m_scratch);
}

bool Replacement::open()
{
    return mayReplace() && makeScratch();
}

bool Replacement::mayReplace()
{
    if (files().isLink(m_fileName))
        return fail(QObject::tr("It is a link, which is not followed."));
    const QFileInfo old(m_fileName);
    if (old.exists() && !old.isFile())
        return fail(QObject::tr("It is no file."));
    if (old.exists() && !old.isWritable())
        return fail(QObject::tr("It may not be changed."));
    removeForgotten(old);
    return true;
}

bool Replacement::makeScratch()
{
    for (int i = 0; i < kScratchTries && !m_file.isOpen(); ++i) {
        const QString name = randomName(m_fileName);
        if (openBy(m_file, name, platform::FileAccess::CreateNew, QIODevice::ReadWrite | QIODevice::Unbuffered))
            m_scratch = name;
    }
    if (!m_file.isOpen())
        return failAsSystem();
    if (QFileInfo::exists(m_fileName))
        QFile::setPermissions(m_scratch, QFile::permissions(m_fileName));
    return true;
}

bool Replacement::write(const QByteArray &bytes)
{
    return files().write(m_file, bytes) || failAsSystem();
}

QString Replacement::handOver()
{
    m_file.close();
    return m_scratch;
}

bool Replacement::putInPlace(const QByteArray &whole)
{
    m_file.close();
    makeTimeDiffer();
    if (!files().flush(m_scratch))
        return failAsSystem();
    const WholeFile written = readWhole(m_scratch, whole.size());
    if (written.bytes != whole || written.more)
        return fail(QObject::tr("The disk did not take everything."));
    if (!files().replace(m_scratch, m_fileName))
        return failAsSystem();
    m_scratch.clear();
    return true;
}

/// The toolkit knows a changed settings file by its size and its time only, and some disks count in steps of 2 s.
void Replacement::makeTimeDiffer()
{
    const QFileInfo old(m_fileName);
    if (!old.exists())
        return;
    for (const int step : {1, 1000, 2000, 4000}) { // ms
        const QFileInfo written(m_scratch);
        if (written.size() != old.size() || written.lastModified() != old.lastModified())
            return;
        QFile file(m_scratch);
        if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            file.setFileTime(old.lastModified().addMSecs(step), QFileDevice::FileModificationTime);
    }
}

bool Replacement::fail(const QString &error)
{
    m_error = error;
    return false;
}

bool Replacement::failAsSystem()
{
    return fail(systemError());
}

QString writeWhole(const QString &fileName, const QByteArray &bytes)
{
    Replacement file(fileName);
    const bool written = file.open() && file.write(bytes) && file.putInPlace(bytes);
    return written ? QString() : file.error();
}

bool openToAppend(QFile &file, const QString &fileName)
{
    return openBy(file, fileName, platform::FileAccess::Append,
                  QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered);
}

QString appendTo(const QString &fileName, const QByteArray &bytes)
{
    QFile file;
    const bool written = openToAppend(file, fileName) && files().write(file, bytes);
    return written ? QString() : systemError();
}
