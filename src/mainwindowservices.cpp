// What the main window does for the session and the pages: refreshing, interface modes, the monitor's state.

#include <utility>

#include <QStackedWidget>

#include "controls/lefttabbutton.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/transport.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/Scene/pagescenesetting.h"
#include "page/emptypage.h"
#include "platform/desk.h"
#include "reconciler.h"
#include "searchdevicedlg.h"
#include "toptabframe.h"
#include "traypanel.h"
#include "traypanelopener.h"

namespace {

constexpr platform::milliseconds kRemovalSettles{300}; // one unplugging is told several times

} // namespace

void MainWindow::refreshPages()
{
    fillPages();
    updateControlText();
}

void MainWindow::fillPages()
{
    m_queue->drain();                  // or a drag's last value would fall into the suspension and be lost
    const auto lock = lockTransport(); // the scene-mode worker waits instead of being silenced
    commandsSuspended = true;
    for (const auto &[id, page] : m_pageOf)
        page->updateInterfaceData();
    commandsSuspended = false;
}

void MainWindow::updateControlText()
{
    m_tabs->updateControlText();
    for (LeftBar *bar : m_bars)
        bar->updateControlText();
    explainEntries();
    for (const auto &[id, page] : m_pageOf)
        page->updateControlText();
    m_emptyPage->updateControlText();
    m_trayPanel->updateControlText();
    updateInterface();
}

void MainWindow::updateInterface()
{
    const MonitorStatus status = monitorStatus();
    const QString name = status.name.isEmpty() ? QStringLiteral("–") : status.name.toHtmlEscaped();
    m_status->setText(
        QStringLiteral("<span style='color:%1; font-size:9px'>●</span>&nbsp;&nbsp;"
                       "<span style='color:#adadad'>%2 · %3</span>")
            .arg(status.isGood ? QStringLiteral("#00ff71") : QStringLiteral("#da676d"), name, status.state));
    m_status->setAccessibleName(status.name + QLatin1Char(' ') + status.state);
    m_trayPanel->showStatus(status);
}

MonitorStatus MainWindow::monitorStatus() const
{
    const QByteArray label = m_session.labels().value(currentMonitorIndex.load());
    const QString state = label.isEmpty()    ? QObject::tr("no monitor")
                          : monitorAnswers() ? QObject::tr("connected")
                                             : QObject::tr("no answer");
    return {QString::fromUtf8(label), state, !label.isEmpty() && monitorAnswers()};
}

/// One request instead of a patient read: a monitor that is silent must not hold up the window.
void MainWindow::reconnectPages()
{
    const QByteArray label = m_session.labels().value(currentMonitorIndex.load());
    if (!label.isEmpty() && std::exchange(m_shownMonitor, label) != label) {
        deviceState.forgetSettings(); // another monitor: nothing that was told holds
        readCommandOnce(readRow(Command::Capability));
        readCommandOnce(readRow(Command::Firmware));
    }
    readCommandOnce(readRow(Command::SceneMode));
    refreshPages();
    m_blockAskedFor.reset();
    readMissingBlock();
    QMetaObject::invokeMethod(m_reconciler, &Reconciler::want, Qt::QueuedConnection); // when the search has ended
}

/// The panel is a hand of the scene page: modes and halves go one way only.
void MainWindow::createTrayPanel()
{
    m_trayPanel = new TrayPanelOpener(*m_queue, this);
    connect(m_trayPanel, &TrayPanelOpener::sceneChosen, m_scenePage, &pageSceneSetting::chooseScene);
    connect(m_trayPanel, &TrayPanelOpener::halfChosen, m_scenePage, &pageSceneSetting::switchHalf);
    connect(m_trayPanel, &TrayPanelOpener::windowWanted, this, &MainWindow::showWindow);
    connect(m_trayPanel, &TrayPanelOpener::opened, m_reconciler, &Reconciler::look);
}

void MainWindow::createReconciler()
{
    m_reconciler = new Reconciler(
        *m_queue, m_session, [this] { return pagesInSight(); }, this);
    connect(&m_queue->values(), &ValueWatch::changed, this, &MainWindow::followValue);
    setLinkObserver([this] {
        const auto follow = [this] {
            updateInterface();
            m_reconciler->linkChanged();
        };
        QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection); // within a request nothing new may begin
    });
}

std::vector<Page *> MainWindow::pagesInSight() const
{
    std::vector<Page *> pages;
    if (isVisible() && !isMinimized())
        pages.push_back(pageInWindow());
    if (m_trayPanel->isOpen())
        pages.push_back(m_trayPanel->panel());
    return pages;
}

Page *MainWindow::pageInWindow() const
{
    for (const auto &[id, page] : m_pageOf) {
        if (page->widget() == m_pages->currentWidget())
            return page;
    }
    return m_scenePage; // an empty page shows the scene mode as well
}

void MainWindow::systemNoticed(SystemNotice notice)
{
    if (notice == SystemNotice::Woke || notice == SystemNotice::DisplaysChanged)
        m_reconciler->handlesMayBeStale();
    else
        m_reconciler->want();
}

void MainWindow::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    const bool comesToFront = event->type() == QEvent::ActivationChange && isActiveWindow();
    if (comesToFront && std::exchange(m_wasInFront, true)) // the first time everything has just been read
        m_reconciler->want();
}

/// The block of a custom half that is on and was not read yet, asked for in the background; one that cannot be read is
/// left until the mode changes, or the monitor is found anew.
void MainWindow::readMissingBlock()
{
    const int mode = deviceState.value(Command::SceneMode);
    const bool isOn = mode % 2 == 0 && deviceState.confirmed(Command::SceneMode) == mode;
    if (!isOn)
        m_blockAskedFor.reset();
    if (!isOn || m_locked || m_session.isSearching() || deviceState.sceneBlockValid() || m_blockAskedFor == mode)
        return;
    m_blockAskedFor = mode;
    m_queue->askBlock(mode);
}

void MainWindow::followValue(Command command)
{
    if (command != Command::SceneMode)
        return;
    followSceneMode();
    readMissingBlock();
}

void MainWindow::deviceArrived()
{
    updateInterface();
}

void MainWindow::deviceRemoved()
{
    if (m_checkWaiting)
        return;
    m_checkWaiting = true;
    platform::desk().clock().callLater(kRemovalSettles, this, [this] { checkMonitor(); });
}

void MainWindow::checkMonitor()
{
    m_checkWaiting = false;
    readCommandOnce(readRow(Command::SceneMode));
    updateInterface();
}

void MainWindow::openFamilyOfScene()
{
    followSceneMode();
    if (const auto family = familyOfSceneValue(deviceState.value(Command::SceneMode)))
        showFamily(static_cast<int>(*family));
}

void MainWindow::setInterfaceMode(int code)
{
    m_locked = code == kLocked;
    enableEverything(!m_locked);
    if (code == kByModel)
        decideEntriesByModel();
    else if (code == kBusy || code == kBusyEnded)
        setAccessoryBusy(code == kBusy);
    enableAccessoryEntries(); // a scene may change while the accessory's work goes on
    explainEntries();
}

void MainWindow::enableEverything(bool enabled)
{
    if (!enabled && !m_focusBefore)
        m_focusBefore = focusWidget();
    m_tabs->setTabsEnabled(enabled);
    for (LeftBar *bar : m_bars) {
        for (LeftTabButton *button : bar->buttons())
            button->setEnabled(enabled);
    }
    m_pages->setEnabled(enabled);
    m_trayPanel->setUsable(enabled);
    if (!enabled)
        return setCursor(Qt::BusyCursor);
    unsetCursor();
    if (m_focusBefore) // disabling takes the keyboard's place away
        m_focusBefore->setFocus();
    m_focusBefore.clear();
}

/// Entries that need a function of the monitor can be chosen only where it has it.
void MainWindow::decideEntriesByModel()
{
    const LeftBar *bar = leftBar(m_family);
    for (std::size_t i = 1; i < bar->entries().size() && i <= 2; ++i) {
        const std::uint16_t bits = bar->entries()[i].needsAny;
        bar->buttons()[i]->setSelectable(bits == 0 || deviceState.hasAny(bits));
    }
}
