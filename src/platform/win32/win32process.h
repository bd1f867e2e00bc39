#pragma once

#include "platform/process.h"

namespace platform {

/// Rights, elevation, folders, library search, named mutexes (shell32, kernel32) and detached programs.
class Win32Process final : public Process
{
public:
    bool isUserAnAdmin() override;
    QString ownFile() override;
    QStringList systemFolders() override;
    QString localDataFolder() override;
    bool restrictLibraries() override;
    std::intptr_t shellExecuteRunas(const QString &file, const QString &parameters, const QString &folder) override;
    NamedMutex createMutex(const QString &name) override;
    void closeHandle(void *handle) override;
    bool startDetached(const QString &program, const QStringList &arguments, const QString &folder) override;
    void quit() override;
};

} // namespace platform
