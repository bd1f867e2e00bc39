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

/// What the program asks of the system about itself. All calls are made on the interface thread.
class Process
{
public:
    virtual ~Process() = default;

    /// Whether the user has administrator rights (IsUserAnAdmin). False also when the question cannot be answered.
    virtual bool isUserAnAdmin() = 0;

    /// The full path of this program's own file, known before there is an application object.
    virtual QString ownFile() = 0;

    /// Starts a file elevated, in a normal window (ShellExecute, verb "runas"). A result above 32 means success.
    virtual std::intptr_t shellExecuteRunas(const QString &file, const QString &parameters) = 0;

    /// Creates or opens a machine-wide name (CreateMutexW).
    virtual NamedMutex createMutex(const QString &name) = 0;

    /// Closes what createMutex gave (CloseHandle); a null handle is ignored.
    virtual void closeHandle(void *handle) = 0;

    /// Starts a program detached from this one; an empty folder means this process's own. False when it did not start.
    virtual bool startDetached(const QString &program, const QStringList &arguments, const QString &folder) = 0;

    /// Ends the event loop, and with it this process, without asking windows to close (they would go to the tray).
    virtual void quit() = 0;
};

} // namespace platform
