#include "platform/win32/win32process.h"

#include <array>

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <QCoreApplication>
#include <QProcess>

#include "platform/win32/win32strings.h"

namespace platform {

static_assert(kErrorAlreadyExists == ERROR_ALREADY_EXISTS);

bool Win32Process::isUserAnAdmin()
{
    return IsUserAnAdmin();
}

QString Win32Process::ownFile()
{
    std::array<wchar_t, 32768> path; // the longest that the system knows
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QString::fromWCharArray(path.data(), static_cast<int>(length));
}

std::intptr_t Win32Process::shellExecuteRunas(const QString &file, const QString &parameters)
{
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteW(nullptr, L"runas", wide(file), wide(parameters), nullptr, SW_SHOWNORMAL));
}

NamedMutex Win32Process::createMutex(const QString &name)
{
    SetLastError(ERROR_SUCCESS); // a fresh name leaves the number alone, so an old one must not stand there
    NamedMutex mutex;
    mutex.handle = CreateMutexW(nullptr, FALSE, wide(name));
    mutex.error = GetLastError();
    return mutex;
}

void Win32Process::closeHandle(void *handle)
{
    if (handle)
        CloseHandle(handle);
}

bool Win32Process::startDetached(const QString &program, const QStringList &arguments, const QString &folder)
{
    return QProcess::startDetached(program, arguments, folder);
}

void Win32Process::quit()
{
    QCoreApplication::exit();
}

} // namespace platform
