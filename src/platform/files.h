#pragma once

#include <cstdint>
#include <memory>

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace platform {

/// How a file is opened.
enum class FileAccess {
    Read,      ///< may lead through a link; anything but a regular file is refused
    Append,    ///< reads, and writes at the end; made when there is none; a link is refused
    CreateNew, ///< writes; fails when there is something of that name, a link included
};

/// What the toolkit's files leave open: what has really reached the disk, and where a write ends up. Safe from any
/// thread.
class Files
{
public:
    virtual ~Files() = default;

    /// A descriptor of the C runtime, in binary mode; -1 when that fails. Never waits for another program.
    virtual int open(const QString &path, FileAccess access) = 0;

    /// Writes all bytes; false when not all were taken.
    virtual bool write(QIODevice &device, const QByteArray &bytes) = 0;

    /// Returns when what was written to a file has reached the disk; false when it has not.
    virtual bool flush(const QString &path) = 0;

    /// Gives a file the name of another, whose place it takes at once: whoever opens that name finds the one or the
    /// other whole. A link of that name is replaced itself.
    virtual bool replace(const QString &path, const QString &replaced) = 0;

    /// Whether a name leads somewhere else: a symbolic link, or a reparse point that stands for another name.
    virtual bool isLink(const QString &path) = 0;

    /// The system's number of the calling thread's last failure in one of these.
    virtual std::uint32_t lastError() = 0;

    /// What ends a line of a text file on this system.
    virtual QByteArray lineEnd() = 0;
};

/// The full path of this program's own file, whichever desk it has; known before there is an application object.
QString ownProgramFile();

/// The files of the system that the program runs on, whichever desk it has.
std::unique_ptr<Files> createSystemFiles();

} // namespace platform
