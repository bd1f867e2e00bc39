#pragma once

#include <cstdint>

#include <QString>
#include <QStringList>

namespace platform {

/// The answer of CreateMutexW: a handle, and the error number that the call left (183: the name already exists).
struct NamedMutex
{
    void *handle = nullptr;
    std::uint32_t error = 0;
};

/// CreateMutexW's error number for a name that another process already holds (ERROR_ALREADY_EXISTS).
inline constexpr std::uint32_t kErrorAlreadyExists = 183;

/// Its error number for a name that this process has not the rights to open (ERROR_ACCESS_DENIED); there is no handle
/// then.
inline constexpr std::uint32_t kErrorAccessDenied = 5;

/// What the program asks of the system about itself. All calls are made on the interface thread.
class Process
{
public:
    virtual ~Process() = default;

    /// Whether this process has administrator rights (IsUserAnAdmin). False also when the question cannot be answered.
    virtual bool isUserAnAdmin() = 0;

    /// The full path of this program's own file, known before there is an application object.
    virtual QString ownFile() = 0;

    /// The folders of Windows itself, with slashes (GetSystemWindowsDirectoryW, GetSystemDirectoryW).
    virtual QStringList systemFolders() = 0;

    /// The folder of what this user's programs keep on this machine, with slashes (FOLDERID_LocalAppData); empty when
    /// the system does not tell.
    virtual QString localDataFolder() = 0;

    /// Looks for libraries beside the program and in the system's folder only, from now on (SetDefaultDllDirectories).
    /// False on a desk whose program has no rights that a library could borrow: there it may load what its user likes.
    virtual bool restrictLibraries() = 0;

    /// Starts a file elevated, in a normal window and in a folder (ShellExecute, verb "runas"). A result above 32 means
    /// success.
    virtual std::intptr_t shellExecuteRunas(const QString &file, const QString &parameters, const QString &folder) = 0;

    /// Creates or opens a name that all programs of the user's session share (CreateMutexW).
    virtual NamedMutex createMutex(const QString &name) = 0;

    /// Closes what createMutex gave (CloseHandle); a null handle is ignored.
    virtual void closeHandle(void *handle) = 0;

    /// Starts a program detached from this one; an empty folder means this process's own. False when it did not start.
    virtual bool startDetached(const QString &program, const QStringList &arguments, const QString &folder) = 0;

    /// Ends the event loop, and with it this process, without asking windows to close (they would go to the tray).
    virtual void quit() = 0;
};

} // namespace platform
