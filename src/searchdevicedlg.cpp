#include "searchdevicedlg.h"

#include <cstdlib>

#include <QComboBox>
#include <QDebug>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include "controls/messagebox.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/settingsstore.h"
#include "ddc_protocol/transport.h"
#include "platform/desk.h"
#include "platform/ending.h"
#include "relaunch.h"
#include "sessionhost.h"

using platform::milliseconds;

namespace {

constexpr int kPasses = 5;
constexpr milliseconds kPassPause{200};

} // namespace

SearchDeviceDlg::SearchDeviceDlg(QWidget *parent)
    : QDialog(parent), m_monitors(this), m_reader([this](int delay) { requestSearchAfter(delay); })
{
    (new QHBoxLayout(this))->addWidget(deviceBox());
    connect(&m_monitors, &MonitorChoice::chosen, this, &SearchDeviceDlg::onCurrentDeviceChanged);
    setReconnectHandler([this] { requestReconnect(); });
    m_changes.emplace(winId(), [this](int delay) { requestSearchAfter(delay); });
}

SearchDeviceDlg::~SearchDeviceDlg()
{
    setReconnectHandler({});
}

bool SearchDeviceDlg::readForReason()
{
    switch (reloadEdidType) {
    case kFullRead:
        return readDataFromDevice();
    case kSceneBlockOnly:
        return readSceneModeData(deviceState.value(Command::SceneMode));
    default:
        return true;
    }
}

SearchDeviceDlg::PassResult SearchDeviceDlg::runPass(int pass)
{
    m_monitors.find();
    m_monitors.chooseForPass(pass);
    if (deviceBox()->count() == 0) {
        if (m_host)
            m_host->refreshPages();
        return PassResult::Finished;
    }
    m_monitors.showTried();

    if (m_host && (reloadEdidType == kReconnect || reloadEdidType == kIdle)) {
        qDebug() << "Reconnet device...";
        m_host->reconnectPages();
        return PassResult::Abandoned;
    }
    if (m_host && reloadEdidType == kFullRead)
        m_host->hideWindow();
    m_readSucceeded = readForReason();
    if (!m_readSucceeded)
        return PassResult::Next;
    if (m_host)
        m_host->refreshPages();
    return PassResult::Finished;
}

/// The progress dialog lets events in, so a device that arrives, or a block that broke, may want a search within this
/// one. It is run when this one has ended, once however many were refused; a run that was remembered causes no other.
bool SearchDeviceDlg::refusesSearch()
{
    if (!m_searching)
        return false;
    qDebug() << "nativeEvent: Aready searching devices Data!";
    if (!m_runsRemembered)
        m_remembered = std::max(m_remembered.value_or(kReconnect), refusedReason());
    return true;
}

/// A restart outlasts everything; what else was refused finds the monitors anew and reads nothing more.
int SearchDeviceDlg::refusedReason() const
{
    return reloadEdidType == kRestartProgram ? kRestartProgram : kReconnect;
}

void SearchDeviceDlg::runRememberedSearch()
{
    const std::optional<int> reason = std::exchange(m_remembered, std::nullopt);
    if (!reason)
        return;
    const auto run = [this, reason = *reason] {
        m_runsRemembered = true;
        reloadEdidType = reason;
        delayedSearchDevices();
        m_runsRemembered = false;
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void SearchDeviceDlg::searchDevices()
{
    if (refusesSearch())
        return;
    m_searching = true;
    const auto ended = qScopeGuard([this] {
        m_searching = false;
        runRememberedSearch();
    });
    currentProjectionMode();
    currentMonitorIndex = m_monitors.storedIndex();
    m_readSucceeded = false;
    for (int pass = 0; pass < kPasses; ++pass) {
        const PassResult result = runPass(pass);
        if (result == PassResult::Abandoned)
            return;
        if (result == PassResult::Finished)
            break;
        if (!platform::desk().clock().sleepBeforeRetry(kPassPause))
            return; // the program ends, which says nothing of the monitor
    }
    settingsInt(QString::fromLatin1(kDeviceIndexKey), currentMonitorIndex, true);
    if (reloadEdidType == kFullRead && !m_readSucceeded) {
        qDebug() << "DDC/CI erorr, App exit!";
        settingsInt(QString::fromLatin1(kDeviceIndexKey), 0, true);
        exitUnsupported();
    } else {
        reloadEdidType = kIdle;
    }
}

void SearchDeviceDlg::exitUnsupported()
{
    showMessage(QMessageBox::Information, QObject::tr("Exit"),
                QObject::tr("The selected display is unsupported or the signal line is disconnected."),
                QObject::tr("Exit"));
    std::exit(0);
}

void SearchDeviceDlg::delayedSearchDevices()
{
    m_reconnectWaiting = false;
    if (platform::programEnds())
        return;
    if (refusesSearch())
        return;
    const int reason = reloadEdidType;
    qDebug() << "delayedSearchDevices: Reloader EDID Type:" << reason;
    if (reason == kRestartProgram) {
        restart();
    } else {
        searchDevices();
    }
    if (m_host) {
        if (reason == kReconnect || reason == kIdle)
            m_host->refreshPages();
        else if (reason == kFullRead)
            m_host->showWindow();
        m_host->updateInterface();
    }
    reloadEdidType = kIdle;
}

bool SearchDeviceDlg::nativeEvent(const QByteArray &eventType, void *message, qintptr *result)
{
    if (eventType == platform::kNativeEventType && m_changes)
        m_changes->follow(*static_cast<const platform::NativeMessage *>(message), m_host);
    return QDialog::nativeEvent(eventType, message, result);
}

bool SearchDeviceDlg::mayLeave()
{
    return !m_host || m_host->mayLeave();
}

void SearchDeviceDlg::requestReconnect()
{
    // On the interface thread the search runs at once. A worker's is queued, and one in the queue is enough.
    if (!m_reconnectWaiting.exchange(true))
        QMetaObject::invokeMethod(this, &SearchDeviceDlg::delayedSearchDevices);
}

void SearchDeviceDlg::requestSearchAfter(int delay)
{
    QMetaObject::invokeMethod(this, [this, delay] {
        platform::desk().clock().callLater(milliseconds(delay), this, [this] { delayedSearchDevices(); });
    });
}

void SearchDeviceDlg::onCurrentDeviceChanged(int index)
{
    // Everything shown belongs to the monitor before, down to the entries of the left bars.
    const bool leaves = mayLeave();
    const Relaunch result = leaves ? relaunchWith(QString::fromLatin1(kDeviceIndexKey), index) : Relaunch::NotStored;
    if (result == Relaunch::Begins)
        return;
    m_monitors.showAgain();
    if (result == Relaunch::NotStarted)
        tellNotRestarted();
}

/// Asked once more: since the user wanted it the window may have been shown again and drawn in.
void SearchDeviceDlg::restart()
{
    const bool leaves = mayLeave();
    if (platform::programEnds())
        return;
    if (!leaves)
        return goOnWithoutCopy();
    settingsInt(QString::fromLatin1(kRestartKey), 1, true);
    if (relaunchAndQuit())
        return;
    settingsInt(QString::fromLatin1(kRestartKey), 0, true);
    goOnWithoutCopy();
    tellNotRestarted();
}

/// No copy takes this one's place, so this one reads what the copy would have read.
void SearchDeviceDlg::goOnWithoutCopy()
{
    reloadEdidType = kIdle; // a search that the reading lets in must not try it again
    {
        const QScopedValueRollback searching(m_searching, true);
        if (readDataFromDevice() && m_host)
            m_host->refreshPages();
    }
    runRememberedSearch();
    if (m_host)
        m_host->showWindow(); // whoever asked for a new start may have hidden it
}

void SearchDeviceDlg::tellNotRestarted()
{
    showMessage(QMessageBox::Warning, QObject::tr("Warning"), notRestarted(), QObject::tr("OK"));
}
