#include "searchdevicedlg.h"

#include <cstdlib>

#include <QComboBox>
#include <QCoreApplication>
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

SearchDeviceDlg::SearchDeviceDlg(QWidget *parent) : QDialog(parent), m_deviceBox(new QComboBox(this))
{
    (new QHBoxLayout(this))->addWidget(m_deviceBox);
    connect(m_deviceBox, &QComboBox::currentIndexChanged, this, &SearchDeviceDlg::onCurrentDeviceChanged);
    setReconnectHandler([this] { requestReconnect(); });
    registerNotifications();
}

SearchDeviceDlg::~SearchDeviceDlg()
{
    setReconnectHandler({});
    for (void *registration : m_registrations)
        platform::desk().deviceNotifications().unregister(registration);
    platform::desk().deviceNotifications().unregisterSystem(winId());
}

std::uint8_t SearchDeviceDlg::storedIndex() const
{
    const auto index = static_cast<std::uint8_t>(settingsInt(QString::fromLatin1(kDeviceIndexKey), 0, false));
    // Before the first search there are no labels and the subtraction wraps: any stored index is then accepted. That is
    // meant; only the second pass falls back.
    const quint64 highest = static_cast<quint64>(m_labels.size()) - 1;
    const bool accepted = index <= highest && projectionMode != ProjectionMode::Clone;
    return accepted ? index : 0;
}

void SearchDeviceDlg::fillDeviceBox()
{
    m_fillingBox = true;
    m_labels = findDevices();
    m_deviceBox->clear();
    for (const QByteArray &label : std::as_const(m_labels)) {
        if (!label.isEmpty())
            m_deviceBox->addItem(QString::fromUtf8(label));
    }
    m_fillingBox = false;
}

void SearchDeviceDlg::chooseIndexForPass(int pass)
{
    const int labels = static_cast<int>(m_labels.size());
    const int index = currentMonitorIndex;
    if (pass == 1 && index != 0)
        currentMonitorIndex = 0;
    else if (pass == 1)
        currentMonitorIndex = labels >= 2 ? 1 : 0;
    else if (pass > 1 && index + 1 < labels)
        currentMonitorIndex = static_cast<std::uint8_t>(index + 1);
    qDebug() << "Connet device Count=" << m_deviceBox->count() << "disp_sle" << currentMonitorIndex.load();
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
    fillDeviceBox();
    chooseIndexForPass(pass);
    if (m_deviceBox->count() == 0) {
        if (m_host)
            m_host->refreshPages();
        return PassResult::Finished;
    }
    m_fillingBox = true;
    m_deviceBox->setCurrentIndex(currentMonitorIndex);
    m_fillingBox = false;

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
    currentMonitorIndex = storedIndex();
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
        settingsInt(QString::fromLatin1(kRestartKey), 1, true);
        if (!relaunchAndQuit())
            goOnWithoutCopy();
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
    if (m_fillingBox || index < 0)
        return;
    // Everything shown belongs to the monitor before, down to the entries of the left bars.
    const bool leaves = mayLeave();
    const Relaunch result = leaves ? relaunchWith(QString::fromLatin1(kDeviceIndexKey), index) : Relaunch::NotStored;
    if (result == Relaunch::Begins)
        return;
    const QSignalBlocker quiet(m_deviceBox);
    m_deviceBox->setCurrentIndex(currentMonitorIndex);
    if (result == Relaunch::NotStarted)
        tellNotRestarted();
}

/// No copy takes this one's place, so this one reads what the copy would have read.
void SearchDeviceDlg::goOnWithoutCopy()
{
    reloadEdidType = kIdle; // a search that the reading lets in must not try it again
    settingsInt(QString::fromLatin1(kRestartKey), 0, true);
    {
        const QScopedValueRollback searching(m_searching, true);
        if (readDataFromDevice() && m_host)
            m_host->refreshPages();
    }
    runRememberedSearch();
    if (m_host)
        m_host->showWindow(); // whoever asked for a new start may have hidden it
    tellNotRestarted();
}

void SearchDeviceDlg::tellNotRestarted()
{
    showMessage(QMessageBox::Warning, QObject::tr("Warning"), notRestarted(), QObject::tr("OK"));
}
