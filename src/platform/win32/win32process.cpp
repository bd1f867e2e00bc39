#include "platform/win32/win32process.h"

#include <array>
#include <memory>

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include "platform/files.h"
#include "platform/win32/win32strings.h"

namespace platform {

static_assert(kErrorAlreadyExists == ERROR_ALREADY_EXISTS && kErrorAccessDenied == ERROR_ACCESS_DENIED);

namespace {

/// What one of the system's functions that name a folder says.
QString folderBy(UINT(WINAPI *function)(wchar_t *, UINT))
{
    std::array<wchar_t, MAX_PATH + 1> path;
    const UINT length = function(path.data(), static_cast<UINT>(path.size()));
    return length < path.size() ? QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), int(length)))
                                : QString();
}

struct TaskMemory
{
    void operator()(wchar_t *text) const { CoTaskMemFree(text); }
};

} // namespace

bool Win32Process::isUserAnAdmin()
{
    return IsUserAnAdmin();
}

QString Win32Process::ownFile()
{
    return ownProgramFile();
}

QStringList Win32Process::systemFolders()
{
    return {folderBy(GetSystemWindowsDirectoryW), folderBy(GetSystemDirectoryW)};
}

QString Win32Process::localDataFolder()
{
    wchar_t *path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_DEFAULT, nullptr, &path);
    const std::unique_ptr<wchar_t, TaskMemory> owned(path); // to be freed in either case
    return SUCCEEDED(result) ? QDir::fromNativeSeparators(QString::fromWCharArray(path)) : QString();
}

bool Win32Process::restrictLibraries()
{
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    return true;
}

std::intptr_t Win32Process::shellExecuteRunas(const QString &file, const QString &parameters, const QString &folder)
{
    const QString place = QDir::toNativeSeparators(folder);
    return reinterpret_cast<std::intptr_t>(
        ShellExecuteW(nullptr, L"runas", wide(file), wide(parameters), wide(place), SW_SHOWNORMAL));
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
