#include "mainwindow.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/pictures.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/writecounts.h"
#include "ddc_protocol/writekeeper.h"
#include "leftbar.h"
#include "page/BasicSetting/pagepcsetting.h"
#include "page/BasicSetting/pageservicessetting.h"
#include "page/BasicSetting/pagesystemsetting.h"
#include "page/Game/pagepictureenhanc.h"
#include "page/IO/pageiosetting.h"
#include "page/Nightloom/matrixformsetting.h"
#include "page/Office/pageoffice.h"
#include "page/Scene/pagescenesetting.h"
#include "page/emptypage.h"
#include "platform/ending.h"
#include "searchdevicedlg.h"
#include "sessionend.h"
#include "toptabframe.h"
#include "trayicon.h"
#include "traypanelopener.h"
#include "usb-hid/hidtransport.h"

namespace {

MainWindow *s_mainWindow = nullptr;

constexpr int kTopHeight = 72;
constexpr int kLeftWidth = 232;
constexpr int kMargin = 24;
constexpr int kStatusLeft = 32; // below the entries' icons
constexpr int kStatusHeight = 40;
constexpr platform::milliseconds kLastValues{1500}; // the system gives the whole program about 5 s

} // namespace

MainWindow *MainWindow::instance()
{
    return s_mainWindow;
}

MainWindow::MainWindow(SearchDeviceDlg &session) : m_session(session)
{
    s_mainWindow = this;
    commandsSuspended = true; // what the construction moves must not reach the monitor
    m_labelPixmap = Pictures::load(Pictures::kRoot + QStringLiteral("img/lable_img.png"), devicePixelRatioF());
    buildForm();
    setWindowTitle(QStringLiteral("QUORVEL"));
    loadMatrixForm();
    reopenHidDevice();
    setUpFrame();
    initialise();
    commandsSuspended = false;
    updateControlText();

    m_barStack->setCurrentIndex(0);
    for (int family = 0; family < kFamilies; ++family) {
        if (navigationFamilies()[static_cast<std::size_t>(family)].startsSelected)
            leftBar(family)->setCurrent(0);
    }
    showFamily(0);
    openFamilyOfScene();
}

MainWindow::~MainWindow()
{
    m_session.setHost(nullptr);
    setLinkObserver({});
    endAccessoryWork();
    delete m_trayPanel;
    delete m_pages; // before the queue that they send through
    closeHid();
    s_mainWindow = nullptr;
}

void MainWindow::buildForm()
{
    m_queue = new CommandQueue(this);
    new WriteKeeper(this); // behind the queue: it goes after the last values were sent
    m_tabs = new TopTabFrame(this);
    m_barStack = new QStackedWidget(this);
    m_pages = new QStackedWidget(this);
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    for (int family = 0; family < kFamilies; ++family) {
        auto *bar = new LeftBar(navigationEntries(family, deviceState), m_barStack);
        m_bars[static_cast<std::size_t>(family)] = bar;
        m_barStack->addWidget(bar);
        connect(bar, &LeftBar::entryChosen, this, [this, family](int index) { chooseEntry(family, index); });
    }
    connect(m_tabs, &TopTabFrame::tabChosen, this, &MainWindow::showFamily);
    connect(m_tabs, &TopTabFrame::minimiseClicked, this, &QWidget::showMinimized);
    connect(m_tabs, &TopTabFrame::closeClicked, this, &QWidget::close);
}

void MainWindow::setUpFrame()
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    const QPixmap picture = Pictures::load(Pictures::kRoot + QStringLiteral("img/bg.png"), devicePixelRatioF());
    setPixmap(picture);
    setScaledContents(true);
    const QSize size = (QSizeF(picture.size()) / picture.devicePixelRatio()).toSize();
    setFixedSize(size);

    m_tabs->setGeometry(0, 0, size.width(), kTopHeight);
    m_barStack->setGeometry(0, kTopHeight, kLeftWidth, size.height() - kTopHeight - kStatusHeight);
    m_status->setGeometry(kStatusLeft, size.height() - kStatusHeight, kLeftWidth - kStatusLeft, kStatusHeight - 8);
    m_pages->setGeometry(kLeftWidth + kMargin, kTopHeight + kMargin, size.width() - kLeftWidth - 2 * kMargin,
                         size.height() - kTopHeight - 2 * kMargin);
}

void MainWindow::initialise()
{
    m_status->setFont(noteFont);
    createPages();
    connect(m_scenePage, &pageSceneSetting::modeChangeBegins, this, [this] { setInterfaceMode(kLocked); });
    connect(m_scenePage, &pageSceneSetting::modeChangeEnded, this, [this] {
        setInterfaceMode(kByModel);
        readMissingBlock();
    });
    createReconciler();
    createTrayPanel();
    connect(m_scenePage, &pageSceneSetting::viewShown, this, &MainWindow::followSceneMode);
    createTrayIcon();
    m_shownMonitor = m_session.labels().value(currentMonitorIndex.load());
    m_session.setHost(this);
    connect(new SessionEnd(this), &SessionEnd::ends, this, &MainWindow::endWithSession);
}

void MainWindow::createPages()
{
    m_scenePage = new pageSceneSetting(m_session, *m_queue, m_pages);
    m_officePage = new PageOffice(*m_queue, m_pages);
    auto *system = new pageSystemSetting(m_session, *m_queue, m_pages);
    connect(system, &pageSystemSetting::resetBegins, this, &MainWindow::hideWindow);
    addPage(PageId::Scene, m_scenePage);
    addPage(PageId::Office, m_officePage);
    addPage(PageId::PictureEnhance, new pagePictureEnhanc(*m_queue, m_pages));
    addPage(PageId::SystemSetting, system);
    addPage(PageId::ToolSetting, new pagePCSetting(m_session, *m_queue, m_pages));
    addPage(PageId::ServicesSetting, new pageServicesSetting(*m_queue, m_pages));
    addPage(PageId::IoSetting, new pageIOSetting(*m_queue, m_pages));
    createAutomation();
    createAccessoryPages();
    m_emptyPage = new EmptyPage(m_pages);
    m_pages->addWidget(m_emptyPage);
}

void MainWindow::addPage(PageId id, Page *page)
{
    m_pageOf[id] = page;
    m_pages->addWidget(page->widget());
    if (const SettingsPage *settings = settingsPage(id))
        connect(settings, &SettingsPage::settingWanted, this, &MainWindow::showSetting);
}

Page *MainWindow::page(PageId id) const
{
    const auto found = m_pageOf.find(id);
    return found == m_pageOf.end() ? nullptr : found->second;
}

SettingsPage *MainWindow::settingsPage(PageId id) const
{
    return dynamic_cast<SettingsPage *>(page(id));
}

void MainWindow::createTrayIcon()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        qDebug() << "SystemTray not available";
        return;
    }
    m_tray = new TrayIcon(this);
    connect(m_tray, &TrayIcon::pressed, this, [this] { m_trayPanel->press(m_tray->geometry()); });
    connect(m_tray, &TrayIcon::showWanted, this, &MainWindow::showWindow);
    connect(m_tray, &TrayIcon::exitWanted, this, &MainWindow::leave);
    m_tray->show();
}

void MainWindow::showFamily(int family)
{
    m_family = family;
    m_tabs->setCurrent(family);
    m_barStack->setCurrentIndex(family);
    showEntryPage(family);
}

void MainWindow::showEntryPage(int family)
{
    if (family < kSceneFamilies) {
        showSceneFamily(family);
        return;
    }
    const LeftBar *bar = leftBar(family);
    if (bar->current() < 0) {
        m_emptyPage->showUnchosen(navigationFamilies()[static_cast<std::size_t>(family)].label);
        return m_pages->setCurrentWidget(m_emptyPage);
    }
    const NavigationEntry &entry = bar->entries()[static_cast<std::size_t>(bar->current())];
    Page *const chosen = page(entry.page);
    if (entry.page == PageId::Office)
        m_officePage->showPanel(entry.label);
    if (!chosen)
        m_emptyPage->showEntry(entry.label);
    m_pages->setCurrentWidget(chosen ? chosen->widget() : m_emptyPage);
}

/// The scene page belongs to the family whose mode is on; the others ask to choose one.
void MainWindow::showSceneFamily(int family)
{
    const SceneMode *mode = sceneModeOf(deviceState.value(Command::SceneMode));
    const bool isOn = !mode || static_cast<int>(mode->family) == family;
    if (!isOn)
        m_emptyPage->showFamily(navigationFamilies()[static_cast<std::size_t>(family)].label, mode->label);
    m_pages->setCurrentWidget(isOn ? m_scenePage : static_cast<QWidget *>(m_emptyPage));
}

void MainWindow::chooseEntry(int family, int index)
{
    const NavigationEntry &entry = leftBar(family)->entries()[static_cast<std::size_t>(index)];
    if (entry.sceneValue != 0)
        m_scenePage->chooseScene(entry.sceneValue);
    showEntryPage(family);
}

void MainWindow::followSceneMode()
{
    for (int family = 0; family < kSceneFamilies; ++family)
        leftBar(family)->setCurrentScene(deviceState.value(Command::SceneMode));
    if (m_family < kSceneFamilies)
        showSceneFamily(m_family);
}

void MainWindow::showWindow()
{
    m_trayPanel->close();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

/// The user logs off: once this returns the process may be gone, so that it cannot wait for the ordinary end.
void MainWindow::endWithSession()
{
    platform::endProgram();
    endAccessoryWork();
    m_queue->drainFor(kLastValues);
    writeCounts.store();
}

bool MainWindow::mayLeave()
{
    if (m_asksToLeave)
        return false; // the question stands already
    const QScopedValueRollback asking(m_asksToLeave, true);
    return std::all_of(m_pageOf.begin(), m_pageOf.end(), [](const auto &entry) { return entry.second->mayLeave(); });
}

void MainWindow::leave()
{
    if (mayLeave())
        platform::endProgram();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (platform::programEnds())
        return;
    hide();
    event->ignore();
    if (m_tray)
        m_tray->tellRunning();
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragStart = event->globalPosition().toPoint() - pos();
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragStart && event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPosition().toPoint() - *m_dragStart);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *)
{
    m_dragStart.reset();
}
