#include "benchdesk.h"

#include <malloc.h>
#include <unistd.h>

#include <chrono>
#include <fstream>

#include <QDir>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/loghandler.h"
#include "ddc_protocol/transport.h"

void MeteredClock::sleep(platform::milliseconds duration)
{
    const auto begin = std::chrono::steady_clock::now();
    m_clock.sleep(duration);
    m_sleptNanoseconds += std::chrono::nanoseconds(std::chrono::steady_clock::now() - begin).count();
}

static void dropMessage(QtMsgType, const QMessageLogContext &, const QString &)
{
}

BenchDesk::BenchDesk(bool logged) : m_folderBefore(QDir::currentPath())
{
    platform::installDesk(&m_platform);
    QDir::setCurrent(m_folder.path());
    desk.process().setFolder(m_folder.path());
    commandsSuspended = false;
    reloadEdidType = kFullRead;
    currentMonitorIndex = 0;
    deviceState.clear();
    qInstallMessageHandler(logged ? logMessageHandler : dropMessage);
}

BenchDesk::~BenchDesk()
{
    qInstallMessageHandler(nullptr);
    monitorList.clear();
    QDir::setCurrent(m_folderBefore);
    platform::installDesk(nullptr);
}

double residentMegabytes()
{
    malloc_trim(0);
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / 1e6;
}
