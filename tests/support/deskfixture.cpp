
#include <mutex>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkrecords.h"
#include "ddc_protocol/writecounts.h"
#include "support/deskfixture.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"

namespace {

std::mutex s_logMutex;
QStringList s_log;

void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard lock(s_logMutex);
    s_log.append(text);
}

QString describe(const virtualdesk::Request &request)
{
    const bool write = request.kind == virtualdesk::RequestKind::Write;
    QString text =
        QStringLiteral("%1 %2").arg(QLatin1String(write ? "W" : "R")).arg(request.code, 2, 16, QLatin1Char('0'));
    if (write)
        text += QStringLiteral("=%1").arg(request.value);
    return request.ok() ? text : text + QLatin1Char('!');
}

} // namespace

DeskFixture::DeskFixture() : desk(clock), m_folderBefore(QDir::currentPath()), m_platform(desk, clock)
{
    platform::installDesk(&m_platform);
    QDir::setCurrent(m_folder.path());
    desk.process().setFolder(m_folder.path());
    desk.displays().setScreens(std::vector<platform::Screen>{{QStringLiteral("First"), QRect(0, 0, 1920, 1080)},
                                                             {QStringLiteral("Second"), QRect(1920, 0, 1920, 1080)}});
    desk.displays().setDisplays({{QStringLiteral("\\\\.\\DISPLAY1"), QRect(0, 0, 1920, 1080)},
                                 {QStringLiteral("\\\\.\\DISPLAY2"), QRect(1920, 0, 1920, 1080)}});
    commandsSuspended = false;
    reloadEdidType = kFullRead;
    currentMonitorIndex = 0;
    projectionMode = ProjectionMode::Unknown;
    monitorList.clear();
    deviceState.clear();
    linkRecords.clear();
    writeCounts.clear();
    accessoryLink.form = &matrixForms().front();
    clearHidFlags();
    resetLiveLatch();
    takeLog();
    qInstallMessageHandler(collect);
}

DeskFixture::~DeskFixture()
{
    qInstallMessageHandler(nullptr);
    closeHid();
    monitorList.clear();
    QDir::setCurrent(m_folderBefore);
    platform::installDesk(nullptr);
}

QStringList DeskFixture::takeRequests(std::size_t index)
{
    QStringList requests;
    for (const virtualdesk::Request &request : monitor(index).history())
        requests.append(describe(request));
    monitor(index).clearHistory();
    return requests;
}

QStringList DeskFixture::takeCommands(std::size_t index)
{
    QStringList commands = takeRequests(index);
    commands.removeIf([](const QString &request) { return request.mid(2).startsWith(QLatin1String("99")); });
    return commands;
}

QStringList DeskFixture::takeLog()
{
    const std::lock_guard lock(s_logMutex);
    return std::exchange(s_log, {});
}
