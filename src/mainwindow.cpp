#include "mainwindow.h"

#include <utility>

#include <QCloseEvent>
#include <QStackedWidget>

#include "controls/announcer.h"
#include "controls/messagebox.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/writekeeper.h"
#include "page/Emberline/pageemberline.h"
#include "page/Emberline/rhythmlight.h"
#include "page/Splitter/splitting.h"
#include "page/monitorpages.h"
#include "platform/ending.h"
#include "scenehands.h"
#include "searchdevicedlg.h"
#include "sessionend.h"
#include "statuscard.h"
#include "toptabframe.h"
#include "tray/traypanel.h"
#include "tray/traypanelopener.h"

namespace {

MainWindow *s_mainWindow = nullptr;
constexpr int kTopHeight = 72;
constexpr int kLeftWidth = 232;

} // namespace

MainWindow *MainWindow::instance()
{
    return s_mainWindow;
}

MainWindow::MainWindow(SearchDeviceDlg &session)
    : FramelessWindow(QStringLiteral("img/bg.png")), m_session(session), m_queue(new CommandQueue(this)),
      m_navigator(new Navigator(m_pages, ground())), m_status(new StatusCard(ground())),
      m_modes(new InterfaceModes(*m_navigator, this)), m_checks(new MonitorChecks(session, *m_queue, *m_modes, this)),
      m_accessory(new AccessoryPages([this] { warnNotConnected(); }, this))
{
    s_mainWindow = this;
    commandsSuspended = true; // what the construction moves must not reach the monitor
    new WriteKeeper(this);    // behind the queue: it goes after the last values were sent
    m_labelPixmap = Pictures::load(Pictures::kRoot + QStringLiteral("img/lable_img.png"), devicePixelRatioF());
    setWindowTitle(QStringLiteral("QUORVEL"));
    new Announcer(this);
    placeParts();
    createPages();
    createFollowers();
    createTray();
    (new SceneHands(*m_navigator, *m_modes, *m_checks, this))->join(*m_scenePage, *trayPanel(), *m_queue);
    m_session.setHost(this);
    commandsSuspended = false;
    updateControlText();
    m_navigator->start();
}

MainWindow::~MainWindow()
{
    m_session.setHost(nullptr);
    m_accessory->end();
    delete m_tray;
    delete m_navigator->pageStack(); // before the queue that they send through
    delete std::exchange(m_reconciler, nullptr);
    s_mainWindow = nullptr;
}

void MainWindow::placeParts()
{
    connect(tabs(), &TopTabFrame::minimiseClicked, this, &QWidget::showMinimized);
    connect(tabs(), &TopTabFrame::closeClicked, this, &QWidget::close);
    const QSize room = ground()->size();
    tabs()->setGeometry(0, 0, room.width(), kTopHeight);
    placeStatus();
    m_navigator->pageStack()->setGeometry(kLeftWidth + metrics::kBlockGap, kTopHeight + metrics::kBlockGap,
                                          room.width() - kLeftWidth - 2 * metrics::kBlockGap,
                                          room.height() - kTopHeight - 2 * metrics::kBlockGap);
}

/// The left bars have what it leaves.
void MainWindow::placeStatus()
{
    const int cardTop = ground()->height() - metrics::kBlockGap - m_status->neededHeight();
    m_navigator->barStack()->setGeometry(0, kTopHeight, kLeftWidth, cardTop - kTopHeight);
    m_status->setGeometry(metrics::kGap, cardTop, kLeftWidth - 2 * metrics::kGap, m_status->neededHeight());
}

void MainWindow::createPages()
{
    QStackedWidget *stack = m_navigator->pageStack();
    auto *monitor = new MonitorPages(m_session, *m_queue, m_pages, stack);
    m_scenePage = monitor->scene();
    m_automation = new Automation(*m_queue, m_pages, stack, this);
    m_rhythm = new RhythmLight(*m_queue, *m_automation->writer(), this);
    monitor->lighting()->follow(*m_rhythm);
    m_splitting = new Splitting({m_automation->keyFields(), m_automation->foregroundWatch(), *m_automation->overlay()},
                                m_pages, stack, this);
    m_accessory->build(*m_queue, m_pages, stack);
    connect(monitor, &MonitorPages::resetBegins, this, &MainWindow::hideWindow);
    for (Page *page : m_pages.all()) {
        stack->addWidget(page->widget());
        if (const auto *settings = dynamic_cast<SettingsPage *>(page))
            connect(settings, &SettingsPage::settingWanted, m_navigator, &Navigator::showSetting);
    }
}

void MainWindow::createFollowers()
{
    connect(m_automation, &Automation::sent, this, &MainWindow::followSent);
    connect(m_accessory, &AccessoryPages::workChanged, m_modes, &InterfaceModes::followAccessoryWork);
    connect(m_modes, &InterfaceModes::accessoryBusyChanged, m_accessory, &AccessoryPages::setInterrupted);
    connect(m_checks, &MonitorChecks::checked, this, &MainWindow::updateInterface);
    m_reconciler = new Reconciler(
        *m_queue, m_session, [this] { return pagesInSight(); }, this);
    connect(m_reconciler, &Reconciler::linkChanged, this, &MainWindow::updateInterface);
    connect(m_reconciler, &Reconciler::linkChanged, m_rhythm, &RhythmLight::followLink);
    connect(m_navigator->pageStack(), &QStackedWidget::currentChanged, this, &MainWindow::followSight);
    connect(m_status, &StatusCard::retryWanted, m_reconciler,
            [this] { m_reconciler->systemNoticed(SystemNotice::DisplaysChanged); });
    new SessionEnd(
        *m_queue, [this] { m_accessory->end(); }, this);
}

void MainWindow::createTray()
{
    m_tray = new Tray(*m_queue, this);
    connect(m_tray, &Tray::showWanted, this, &MainWindow::showWindow);
    connect(m_tray, &Tray::exitWanted, this, &MainWindow::leave);
    connect(m_modes, &InterfaceModes::usableChanged, trayPanel(), &TrayPanelOpener::setUsable);
    connect(trayPanel(), &TrayPanelOpener::zonesWanted, this, &MainWindow::onSpliter);
    connect(trayPanel(), &TrayPanelOpener::opened, m_reconciler, &Reconciler::look);
}

void MainWindow::onSpliter()
{
    m_splitting->openZones();
}

void MainWindow::onSpliterFixed()
{
    m_splitting->openZones(true);
}

void MainWindow::refreshPages()
{
    m_pages.fill(*m_queue);
    updateControlText();
}

void MainWindow::reconnectPages()
{
    m_checks->askAfterReconnection();
    refreshPages();
    m_rhythm->followLink();
    m_checks->readMissingBlock(true);
    QMetaObject::invokeMethod(m_reconciler, &Reconciler::want, Qt::QueuedConnection); // when the search has ended
}

void MainWindow::systemNoticed(SystemNotice notice)
{
    m_rhythm->systemNoticed(notice); // first: it makes dark, and the reconciliation may have much to ask
    m_reconciler->systemNoticed(notice);
    m_splitting->systemNoticed(notice);
}

void MainWindow::updateControlText()
{
    m_navigator->updateControlText();
    m_modes->explain();
    m_pages.updateControlText();
    trayPanel()->updateControlText();
    updateInterface();
}

void MainWindow::updateInterface()
{
    const MonitorStatus status = monitorStatus(m_session);
    m_status->tell(status);
    placeStatus();
    trayPanel()->showStatus(status);
}

void MainWindow::followSent(Command command)
{
    m_pages.fill(*m_queue);
    if (command == Command::SceneMode)
        m_navigator->followSceneMode();
}

std::vector<Page *> MainWindow::pagesInSight() const
{
    std::vector<Page *> pages;
    if (isVisible() && !isMinimized())
        pages.push_back(m_navigator->current());
    if (trayPanel()->isOpen())
        pages.push_back(trayPanel()->panel());
    return pages;
}

void MainWindow::warnNotConnected()
{
    showMessage(QMessageBox::Warning, QObject::tr("Warning"),
                QObject::tr("No Type-C data cable or HDMI/DP + USB data cable connected."), QObject::tr("OK"),
                QMessageBox::YesRole, this);
}

void MainWindow::showWindow()
{
    trayPanel()->close();
    showInFront();
}

void MainWindow::leave()
{
    if (mayLeave())
        platform::endProgram();
}

void MainWindow::cameToFront()
{
    if (std::exchange(m_wasInFront, true) && m_reconciler) // the first time everything has just been read
        m_reconciler->want();
}

/// It may be shown without coming to the front.
void MainWindow::showEvent(QShowEvent *event)
{
    FramelessWindow::showEvent(event);
    followSight();
}

/// An empty page names the mode that is on; every other page asks for what it shows itself.
void MainWindow::followSight()
{
    if (!m_reconciler)
        return;
    if (!m_pages.shownBy(m_navigator->pageStack()->currentWidget()))
        m_reconciler->wantMode();
    else
        m_reconciler->look();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (platform::programEnds())
        return;
    hide();
    event->ignore();
    m_tray->tellRunning();
}
