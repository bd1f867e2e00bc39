#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <QDir>
#include <QFileInfo>

#include "platform/files.h"
#include "platform/win32/win32strings.h"

namespace platform {

namespace {

thread_local std::uint32_t s_lastError = 0;

bool finish(bool ok)
{
    if (!ok)
        s_lastError = GetLastError();
    return ok;
}

/// The same for what goes through the C runtime, which keeps the system's number where nobody clears it; 0 when it is
/// the runtime itself that has no room.
bool finishRuntime(bool ok, DWORD noRoom)
{
    if (!ok)
        s_lastError = _doserrno != 0 ? _doserrno : noRoom;
    return ok;
}

/// A handle of a file that closes itself.
class FileHandle
{
public:
    explicit FileHandle(HANDLE handle) : m_handle(handle) {}
    ~FileHandle()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    Q_DISABLE_COPY_MOVE(FileHandle)

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }
    HANDLE release() { return std::exchange(m_handle, INVALID_HANDLE_VALUE); }

private:
    HANDLE m_handle;
};

/// The path in the form that may be longer than 260 letters, where it is that long.
QString longPath(const QString &path)
{
    constexpr qsizetype kLongest = 240; // some calls keep room for a file's short name
    const QString full = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    if (full.size() < kLongest || full.startsWith(QLatin1String(R"(\\?\)")))
        return full;
    if (full.startsWith(QLatin1String(R"(\\)")))
        return QLatin1String(R"(\\?\UNC)") + full.sliced(1);
    return QLatin1String(R"(\\?\)") + full;
}

constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct Opening
{
    DWORD access;
    DWORD disposition;
    DWORD attributes;
    int descriptorFlags;
};

Opening openingOf(FileAccess access)
{
    switch (access) {
    case FileAccess::Read:
        return {GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, _O_RDONLY};
    case FileAccess::Append:
        return {GENERIC_READ | FILE_APPEND_DATA | SYNCHRONIZE, OPEN_ALWAYS,
                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, _O_APPEND};
    case FileAccess::CreateNew:
        break;
    }
    return {GENERIC_READ | GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, 0};
}

/// Opened as itself, a reparse point that stands for another name shows its tag; others, such as those of files that
/// are kept in a cloud, are the file.
bool standsForAnotherName(HANDLE handle)
{
    FILE_ATTRIBUTE_TAG_INFO info{};
    return GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &info, sizeof info) &&
           (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(info.ReparseTag);
}

/// What a file that another program has open answers to whoever wants its name.
bool isHeld(DWORD error)
{
    return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
}

/// A file that others have open, and share, gives its name away and lives on without one. Two steps for the system, so
/// only where it cannot be done in one; and the old file keeps a name, or a second step that fails would cost it.
bool replaceHeld(const QString &path, const QString &replaced)
{
    constexpr DWORD kWithoutSecurity = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    const QString old = path + QLatin1String(".old");
    if (ReplaceFileW(wide(replaced), wide(path), wide(old), kWithoutSecurity, nullptr, nullptr)) {
        DeleteFileW(wide(old));
        return true;
    }
    const DWORD error = GetLastError();
    MoveFileExW(wide(old), wide(replaced), 0); // fails where the first step did
    SetLastError(error);
    return false;
}

class Win32Files final : public Files
{
public:
    int open(const QString &path, FileAccess access) override
    {
        const Opening how = openingOf(access);
        FileHandle file(
            CreateFileW(wide(longPath(path)), how.access, kShared, nullptr, how.disposition, how.attributes, nullptr));
        if (!finish(file.isOpen()))
            return -1;
        if (GetFileType(file.get()) != FILE_TYPE_DISK || standsForAnotherName(file.get())) {
            s_lastError = ERROR_CANT_ACCESS_FILE;
            return -1;
        }
        _doserrno = 0;
        const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file.get()), how.descriptorFlags | _O_BINARY);
        if (finishRuntime(descriptor >= 0, ERROR_TOO_MANY_OPEN_FILES))
            file.release(); // goes with the descriptor
        return descriptor;
    }

    bool write(QIODevice &device, const QByteArray &bytes) override
    {
        _doserrno = 0;
        return finishRuntime(device.write(bytes) == bytes.size(), ERROR_DISK_FULL);
    }

    bool flush(const QString &path) override
    {
        const FileHandle file(CreateFileW(wide(longPath(path)), GENERIC_WRITE, kShared, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
        return finish(file.isOpen() && FlushFileBuffers(file.get()));
    }

    bool replace(const QString &path, const QString &replaced) override
    {
        const QString from = longPath(path);
        const QString to = longPath(replaced);
        return finish(MoveFileExW(wide(from), wide(to), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ||
                      (isHeld(GetLastError()) && replaceHeld(from, to)));
    }

    bool isLink(const QString &path) override
    {
        const FileHandle file(CreateFileW(wide(longPath(path)), FILE_READ_ATTRIBUTES, kShared, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
        return file.isOpen() && standsForAnotherName(file.get());
    }

    std::uint32_t lastError() override { return s_lastError; }
    QByteArray lineEnd() override { return "\r\n"; }
};

} // namespace

QString ownProgramFile()
{
    std::array<wchar_t, 32768> path; // the longest that the system knows
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QString::fromWCharArray(path.data(), static_cast<int>(length));
}

std::unique_ptr<Files> createSystemFiles()
{
    return std::make_unique<Win32Files>();
}

} // namespace platform
