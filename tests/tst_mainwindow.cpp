#include <QCloseEvent>
#include <QMessageBox>
#include <QtTest>

#include "PictureAudioCom/soundanalyzer.h"
#include "controls/lefttabbutton.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/transport.h"
#include "following/followlist.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/pageledmusic.h"
#include "page/Scene/pagescenesetting.h"
#include "page/emptypage.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/page.h"
#include "platform/nativemessage.h"
#include "searchdevicedlg.h"
#include "shortcut/shortcutlist.h"
#include "support/deskfixture.h"
#include "toptab.h"
#include "toptabframe.h"
#include "usb-hid/hidtransport.h"

using namespace std::chrono_literals;

class TestMainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void constructionSendsNothing();
    void openingFamily_data();
    void openingFamily();
    void entriesByModel();
    void entrySwitchesTheScene();
    void otherEntriesNameThemselves();
    void familiesWithoutTheModeAskToChoose();
    void interfaceModes_data();
    void interfaceModes();
    void gameEntriesByModel();
    void unreadableBlockIsTriedOnce();
    void closingHides();
    void dragging();
    void refreshKeepsADraggedValue();
    void reconnectShowsTheMonitorsState();
    void unpluggingAndPlugging();
    void keyboardWalksTheTabs();
    void hotKeysShow();
    void followedScenesShow();
    void refusedHotKeyIsNotKept();
    void accessoryIsOpenedAndFollowed();
    void missingAccessoryIsTold();
    void busyModeStopsTheWorker();
    void busyModeInterruptsMusic();

private:
    void start(
        int scene, std::size_t monitor = 0, const std::function<void()> &prepare = [] {});
    LeftTabButton *entry(int family, const char *label) const;
    QStringList shownTexts(const QWidget *page) const;
    QString status() const;

    std::unique_ptr<DeskFixture> m_desk;
    std::unique_ptr<SearchDeviceDlg> m_session;
    std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::start(int scene, std::size_t monitor, const std::function<void()> &prepare)
{
    m_desk = std::make_unique<DeskFixture>();
    m_desk->monitor(monitor).setValue(0x22, static_cast<std::uint16_t>(scene));
    if (monitor != 0)
        m_desk->desk.unplug(0);
    m_session = std::make_unique<SearchDeviceDlg>();
    m_session->searchDevices();
    m_desk->takeCommands(monitor);
    prepare();
    m_window = std::make_unique<MainWindow>(*m_session);
    m_window->show();
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    QVERIFY(!MainWindow::instance());
    m_session.reset();
    m_desk.reset();
}

LeftTabButton *TestMainWindow::entry(int family, const char *label) const
{
    for (LeftTabButton *button : m_window->leftBar(family)->buttons()) {
        if (button->caption() == QLatin1String(label))
            return button;
    }
    return nullptr;
}

QStringList TestMainWindow::shownTexts(const QWidget *page) const
{
    QStringList texts;
    for (const QLabel *label : page->findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

QString TestMainWindow::status() const
{
    for (const QLabel *label : m_window->findChildren<QLabel *>()) {
        if (label->accessibleName().contains("connected") || label->accessibleName().contains("no "))
            return label->accessibleName().trimmed();
    }
    return {};
}

void TestMainWindow::constructionSendsNothing()
{
    start(10);
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QVERIFY(!commandsSuspended);
    QCOMPARE(MainWindow::instance(), m_window.get());
    QCOMPARE(m_window->size(), QSize(1280, 800));
    QCOMPARE(static_cast<quint32>(m_window->windowFlags() & ~Qt::WindowType_Mask), 0xC800u);
}

void TestMainWindow::openingFamily_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("entry");
    QTest::newRow("scene") << 1 << 0 << 1; // behind the maker's own mode
    QTest::newRow("scene, custom") << 10 << 0 << 5;
    QTest::newRow("mac view") << 29 << 1 << 0;
    QTest::newRow("colour space") << 50 << 2 << 0;
    QTest::newRow("print mode") << 85 << 3 << 2;
}

void TestMainWindow::openingFamily()
{
    QFETCH(int, scene);
    QFETCH(int, family);
    QFETCH(int, entry);
    start(scene);
    QCOMPARE(m_window->tabs()->current(), family);
    QCOMPARE(m_window->leftBar(family)->current(), entry);
    QVERIFY(m_window->scenePage()->isVisible());
    QCOMPARE(m_window->scenePage()->isDefaultView(), scene % 2 != 0);
}

void TestMainWindow::entriesByModel()
{
    start(9);
    QVERIFY(entry(0, "Zelmar Mode"));
    QVERIFY(!entry(0, "MPCS/LD"));
    cleanup();
    start(9, 1);
    QVERIFY(!entry(0, "Zelmar Mode"));
    QVERIFY(entry(0, "MPCS/LD"));
    QVERIFY(!m_window->scenePage()->optionGroup(Command::LocalDimming));
    QVERIFY(!m_window->scenePage()->slider("Halo Control"));
    QVERIFY(m_window->scenePage()->slider("Brightness"));
}

void TestMainWindow::entrySwitchesTheScene()
{
    start(10);
    QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
    QTest::keyClick(entry(1, "AdobeRGB"), Qt::Key_Return);
    QCOMPARE(m_desk->takeRequests(), (QStringList{"W 99=13", "W 22=13", "W 99=47", "W 22=47"}));
    QVERIFY(entry(1, "AdobeRGB")->isChecked());
    QCOMPARE(m_window->leftBar(0)->current(), -1); // the mode that is on belongs to the other family
}

void TestMainWindow::otherEntriesNameThemselves()
{
    start(10);
    for (int family = kSceneFamilies; family < kFamilies; ++family) {
        QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
        const LeftBar *bar = m_window->leftBar(family);
        for (std::size_t i = 0; i < bar->buttons().size(); ++i) {
            QTest::mouseClick(bar->buttons()[i], Qt::LeftButton);
            Page *known = m_window->page(bar->entries()[i].page);
            const QWidget *page = known ? known->widget() : m_window->findChild<EmptyPage *>();
            QVERIFY2(page->isVisible(), bar->entries()[i].label);
            if (qobject_cast<const EmptyPage *>(page))
                QVERIFY2(shownTexts(page).contains(bar->buttons()[i]->caption()), bar->entries()[i].label);
        }
    }
    QVERIFY(m_desk->takeRequests().filter("W ").isEmpty()); // opening pages asks, but sends nothing
}

void TestMainWindow::familiesWithoutTheModeAskToChoose()
{
    start(10);
    QTest::mouseClick(m_window->tabs()->tabs()[1], Qt::LeftButton);
    QVERIFY(!m_window->scenePage()->isVisible());
    QVERIFY(shownTexts(m_window->findChild<EmptyPage *>()).join('|').contains("Movie Mode"));
    QTest::mouseClick(entry(1, "HDTV Video"), Qt::LeftButton);
    QVERIFY(m_window->scenePage()->isVisible());
}

void TestMainWindow::interfaceModes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("tabs");
    QTest::addColumn<int>("accessoryEntries"); // that can be chosen
    QTest::newRow("0 locks") << 0 << false << 0;
    QTest::newRow("1 unlocks") << 1 << true << 6;
    QTest::newRow("3 by model") << 3 << true << 6;
    QTest::newRow("4 busy") << 4 << true << 1;
    QTest::newRow("5 busy ended") << 5 << true << 6;
}

void TestMainWindow::interfaceModes()
{
    QFETCH(int, code);
    QFETCH(bool, tabs);
    QFETCH(int, accessoryEntries);
    start(10);
    m_window->setInterfaceMode(0);
    m_window->setInterfaceMode(code);
    QCOMPARE(m_window->tabs()->tabs().front()->isEnabled(), tabs);
    QCOMPARE(entry(0, "Night Mode")->isEnabled(), tabs);
    const auto &buttons = m_window->leftBar(kAccessoryFamily)->buttons();
    QCOMPARE(std::count_if(buttons.begin(), buttons.end(), [](auto *button) { return button->isEnabled(); }),
             accessoryEntries);
    if (!tabs) {
        QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
        QCOMPARE(m_desk->takeRequests(), QStringList());
    }
}

void TestMainWindow::gameEntriesByModel()
{
    for (const std::size_t monitor : {0, 1}) { // the second one has no game functions
        start(10, monitor);
        QTest::mouseClick(m_window->tabs()->tabs()[5], Qt::LeftButton);
        m_window->setInterfaceMode(kByModel);
        QVERIFY(entry(5, "Picture Enhance")->isSelectable());
        QCOMPARE(entry(5, "Emberline")->isSelectable(), monitor == 0);
        m_window->setInterfaceMode(kUnlocked);
        if (monitor == 0)
            cleanup();
    }
}

void TestMainWindow::unreadableBlockIsTriedOnce()
{
    start(9);
    m_desk->monitor().setValue(0x22, 10); // by the monitor's own buttons
    m_desk->monitor().dropChunks(virtualdesk::kForEver);
    m_session->delayedSearchDevices();
    QVERIFY(m_desk->takeCommands().contains("R 0a"));
    for (int round = 0; round < 5; ++round)
        m_desk->clock.advance(platform::milliseconds(200)); // the reconnections that follow a failed block
    QVERIFY(!m_desk->takeCommands().contains("R 0a"));
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0));
}

void TestMainWindow::closingHides()
{
    start(10);
    QCloseEvent event;
    QCoreApplication::sendEvent(m_window.get(), &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(m_window->isHidden());
    m_window->showWindow();
    QVERIFY(m_window->isVisible());
}

void TestMainWindow::dragging()
{
    start(10);
    const QPoint before = m_window->pos();
    QTest::mousePress(m_window.get(), Qt::LeftButton, {}, QPoint(120, 740));
    QTest::mouseMove(m_window.get(), QPoint(150, 720));
    QCOMPARE(m_window->pos() - before, QPoint(30, -20));
    QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, QPoint(120, 740));
    QTest::mouseMove(m_window.get(), QPoint(300, 300));
    QCOMPARE(m_window->pos() - before, QPoint(30, -20));
}

void TestMainWindow::refreshKeepsADraggedValue()
{
    start(10);
    {
        const auto busy = lockTransport();
        m_window->scenePage()->slider("Brightness")->slider()->setSliderPosition(17);
    }
    m_window->refreshPages(); // must not swallow what the drag has still to send
    QCOMPARE(int(m_desk->monitor().value(0x10)), 17);
    QVERIFY(!commandsSuspended);
}

void TestMainWindow::reconnectShowsTheMonitorsState()
{
    start(10);
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    m_desk->monitor().goDeaf();
    m_desk->clock.takeWaits();
    QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED no answer"));
    QCOMPARE(m_desk->clock.takeWaits(), (QList<int>{100, 100})); // the write's own; the window does not wait on top
    m_desk->monitor().recover();
    m_session->delayedSearchDevices();
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QVERIFY(entry(0, "Movie Mode")->isChecked()); // what the monitor says is on
    QVERIFY(!m_window->scenePage()->isDefaultView());
    QVERIFY(deviceState.sceneBlockValid());
}

void TestMainWindow::unpluggingAndPlugging()
{
    start(10);
    m_desk->desk.unplug(0);
    m_desk->clock.advance(platform::milliseconds(300));
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED no answer"));
    m_desk->desk.plug(0);
    m_desk->clock.advance(platform::milliseconds(1000));
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QCOMPARE(m_desk->desk.handleFaults(), 0);
}

void TestMainWindow::keyboardWalksTheTabs()
{
    start(10);
    const auto &tabs = m_window->tabs()->tabs();
    m_window->activateWindow();
    tabs[1]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(tabs[1], Qt::Key_Right);
    QTest::keyClick(tabs[2], Qt::Key_Space);
    QCOMPARE(m_window->tabs()->current(), 2);
    QVERIFY(tabs[2]->accessibleName() == "Color Space");
}

void TestMainWindow::hotKeysShow()
{
    start(10, 0, [] {
        saveShortcuts({true, {{12, true, QStringLiteral("Ctrl+B"), {}}, {16, true, QStringLiteral("Ctrl+G"), {}}}});
    });
    m_desk->clock.advance(200ms);
    CommandQueue *queue = m_window->findChild<CommandQueue *>();
    queue->post(Command::Brightness, 40); // a drag's last value goes out before the key asks
    m_desk->takeCommands();
    m_desk->desk.pressKey(platform::kModifierControl, 'B');
    QCOMPARE(m_desk->monitor().value(0x10), std::uint16_t(50));
    QCOMPARE(m_window->scenePage()->slider("Brightness")->slider()->value(), 50);
    QVERIFY(m_window->overlay()->isShown());
    QCOMPARE(m_window->overlay()->text(), QStringLiteral("Brightness: 50"));

    m_desk->monitor().setValue(0x26, 0);
    m_desk->clock.advance(200ms);
    m_desk->desk.pressKey(platform::kModifierControl, 'G');
    const QString option = m_window->scenePage()->optionGroup(Command::Gamma)->buttonOf(1)->text().trimmed();
    QCOMPARE(m_window->overlay()->text(), QStringLiteral("Gamma: ") + option); // as the page calls it
    QVERIFY(m_window->scenePage()->optionGroup(Command::Gamma)->buttonOf(1)->isChecked());
}

void TestMainWindow::followedScenesShow()
{
    start(10, 0, [] { saveFollowList({{QStringLiteral("D:/Games/Night Race/NightRace.exe"), 6}}); });
    m_desk->desk.applications().bringToFront(1);
    QCOMPARE(m_desk->monitor().value(0x22), std::uint16_t(13));
    QVERIFY(entry(0, "Night Mode")->isChecked());
}

void TestMainWindow::accessoryIsOpenedAndFollowed()
{
    start(10);
    virtualdesk::SimulatedAccessory &accessory = m_desk->desk.accessory();
    QVERIFY(hidHandle);
    QCOMPARE(accessory.handlesOpen(), 1);
    accessory.setPlugged(false);
    QVERIFY(hidHandle); // nobody noticed yet
    accessory.setPlugged(true);
    AccessoryReport report;
    buildLiveStop(report);
    QCOMPARE(writeHid(report), HidWrite::Done); // the arrival opened it anew
    QCOMPARE(accessory.handlesOpen(), 1);
    m_window.reset();
    QVERIFY(!hidHandle);
    QCOMPARE(accessory.handlesOpen() + accessory.handleFaults(), 0);
}

void TestMainWindow::missingAccessoryIsTold()
{
    start(10);
    QVERIFY(m_window->ensureHidConnected());
    m_desk->desk.accessory().setPlugged(false);
    for (int i = 0; i < 2; ++i) { // every time
        QStringList box;
        QTimer::singleShot(0, this, [&box] {
            const auto *shown = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(shown);
            QCOMPARE(shown->icon(), QMessageBox::Warning);
            QVERIFY(shown->styleSheet().startsWith("QMessageBox {background-color: #101611;}QLabel{ color: white;}"));
            box = {shown->windowTitle(), shown->text()};
            for (QAbstractButton *button : shown->buttons())
                box.append(button->text());
            shown->buttons().first()->click();
        });
        QVERIFY(!m_window->ensureHidConnected());
        QCOMPARE(box, (QStringList{"Warning", "No Type-C data cable or HDMI/DP + USB data cable connected.", "OK"}));
    }
    m_desk->desk.accessory().setPlugged(true);
    QVERIFY(m_window->ensureHidConnected());
}

void TestMainWindow::busyModeStopsTheWorker()
{
    start(10);
    ledWorkThread *worker = ledWorkThread::instance();
    worker->begin(ledWorkThread::ClockLoop);
    QTRY_VERIFY(m_desk->desk.accessory().state().liveFrames > 0);
    m_window->setInterfaceMode(kBusy);
    QCOMPARE(worker->state(), ledWorkThread::Stopped);
    QVERIFY(worker->wait(10000));
    worker->begin(ledWorkThread::ClockLoop);
    m_window.reset(); // the program's end
    QVERIFY(worker->isFinished());
}

void TestMainWindow::refusedHotKeyIsNotKept()
{
    start(10, 0, [] { saveShortcuts({true, {{1, true, QStringLiteral("Ctrl+1"), {}}}}); });
    m_desk->clock.advance(200ms);
    m_desk->monitor().refuseWrites(4); // the command with its retry
    m_desk->desk.pressKey(platform::kModifierControl, '1');
    m_desk->clock.advance(10s);
    QCOMPARE(m_desk->monitor().value(0x22), std::uint16_t(10));
    QCOMPARE(deviceState.value(Command::SceneMode), 10); // what is on
    QVERIFY(entry(0, "Movie Mode")->isChecked());
    QVERIFY(!m_window->overlay()->text().contains(QStringLiteral("parameters")));
}

void TestMainWindow::busyModeInterruptsMusic()
{
    start(10);
    SoundAnalyzer &analyzer = SoundAnalyzer::instance();
    auto *music = qobject_cast<pageLEDMusic *>(m_window->page(PageId::LedMusic)->widget());
    music->switchOptions()->buttonOf(1)->click();
    QTRY_VERIFY(analyzer.isCapturing());
    m_window->setInterfaceMode(kBusy);
    QTRY_VERIFY(!analyzer.isRunning());
    m_window->setInterfaceMode(kBusyEnded);
    QTRY_VERIFY(analyzer.isCapturing());
    m_window.reset(); // the program's end
    QVERIFY(analyzer.isFinished());
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
