#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QStringList>

#include "platform/process.h"
#include "virtualdesk/monitorhandles.h"
#include "virtualdesk/startupfile.h"

namespace virtualdesk {

/// A program that was asked to be started.
struct StartedProgram
{
    QString program;
    QStringList arguments;
    QString folder;
};

/// What the system is to the program's process: its rights, other processes, names, what starts at log-on, the session.
class SimulatedProcess
{
public:
    /// Faults with its handles are counted there.
    explicit SimulatedProcess(MonitorHandles &handles);
    ~SimulatedProcess();

    bool administrator = true;
    int runasResult = 42;
    QStringList systemFolders; ///< none at first
    /// Whether the program may be told by nobody what to load.
    bool restrictsLibraries = false;
    /// Whether programs are really started and this one really quits; a test leaves it off.
    bool startsPrograms = false;
    /// Starting a program when none is really started: whether it succeeds.
    std::function<bool()> start = [] { return true; };
    int quits = 0;                        ///< how often this program was asked to end
    std::vector<StartedProgram> started;  ///< detached
    std::vector<StartedProgram> elevated; ///< asked for with "runas"

    platform::NamedMutex createMutex(const QString &name);
    void closeMutex(void *handle);
    /// What starts at log-on.
    StartUpFile &startUp() { return m_startUp; }
    /// Where the files are that stand for names and for the log-on list; the system's folder for temporary files at
    /// first.
    void setFolder(const QString &folder);

    /// The user logs off: the program is asked first and, unless it refuses, told; false when it refused.
    bool endSession();

private:
    struct OpenMutex;

    MonitorHandles &m_handles;
    QString m_folder;
    StartUpFile m_startUp;
    std::vector<std::unique_ptr<OpenMutex>> m_mutexes;
};

} // namespace virtualdesk
