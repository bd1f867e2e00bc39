#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "platform/files.h"

namespace platform {

namespace {

thread_local std::uint32_t s_lastError = 0;

bool finish(bool ok)
{
    if (!ok)
        s_lastError = static_cast<std::uint32_t>(errno);
    return ok;
}

/// A descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    int get() const { return m_descriptor; }
    int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor;
};

int flagsOf(FileAccess access)
{
    switch (access) {
    case FileAccess::Read:
        return O_RDONLY;
    case FileAccess::Append:
        return O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW;
    case FileAccess::CreateNew:
        break;
    }
    return O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
}

class PosixFiles final : public Files
{
public:
    int open(const QString &path, FileAccess access) override
    {
        // Without waiting: a pipe of that name may have nobody at its other end.
        Descriptor file(::open(QFile::encodeName(path).constData(), flagsOf(access) | O_CLOEXEC | O_NONBLOCK, 0666));
        struct stat status
        {
        };
        if (!finish(file.get() >= 0 && ::fstat(file.get(), &status) == 0))
            return -1;
        if (!S_ISREG(status.st_mode)) {
            s_lastError = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
            return -1;
        }
        return file.release();
    }

    bool write(QIODevice &device, const QByteArray &bytes) override
    {
        return finish(device.write(bytes) == bytes.size());
    }

    bool flush(const QString &path) override
    {
        const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
        return finish(file.get() >= 0 && ::fsync(file.get()) == 0);
    }

    bool replace(const QString &path, const QString &replaced) override
    {
        if (!finish(::rename(QFile::encodeName(path).constData(), QFile::encodeName(replaced).constData()) == 0))
            return false;
        // The name itself lies in the folder. Should that not reach the disk, the old file is there again, whole.
        const QByteArray folder = QFile::encodeName(QFileInfo(replaced).absolutePath());
        const Descriptor directory(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (directory.get() >= 0)
            ::fsync(directory.get());
        return true;
    }

    bool isLink(const QString &path) override
    {
        struct stat status
        {
        };
        return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISLNK(status.st_mode);
    }

    std::uint32_t lastError() override { return s_lastError; }
    QByteArray lineEnd() override { return "\n"; }
};

} // namespace

QString ownProgramFile()
{
    const QString file = QFile::symLinkTarget(QStringLiteral("/proc/self/exe")); // where there is such a thing
    return file.isEmpty() ? QCoreApplication::applicationFilePath() : file;
}

std::unique_ptr<Files> createSystemFiles()
{
    return std::make_unique<PosixFiles>();
}

} // namespace platform
