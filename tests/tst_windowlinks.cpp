#include <thread>

#include <QDeadlineTimer>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include "PictureAudioCom/soundanalyzer.h"
#include "controls/lefttabbutton.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "following/followlist.h"
#include "leftbar.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/music/pageledmusic.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "page/Nightloom/system/pageledsystem.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/page.h"
#include "platform/nativemessage.h"
#include "shortcut/shortcutlist.h"
#include "support/windowfixture.h"
#include "toptab.h"
#include "toptabframe.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"

using namespace std::chrono_literals;

/// What reaches the window from beside the monitor: hot keys, programs in front, the accessory.
class TestWindowLinks : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void hotKeysAndFollowingShow();
    void overlayNamesValues();
    void overlayGoesByItself();
    void refusedHotKeyIsNotKept();
    void accessoryIsOpenedAndFollowed();
    void missingAccessoryIsTold();
    void busyModeStopsTheLiveDisplay();
    void uploadKeepsTheOthersAway();
    void exitAsksOnce();
    void retryPressedOnceMore();
};

void TestWindowLinks::hotKeysAndFollowingShow()
{
    start(10, 0, [] {
        saveFollowList({{QStringLiteral("D:/Games/Night Race/NightRace.exe"), 6}});
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

    QTest::mouseClick(m_window->tabs()->tabs()[8], Qt::LeftButton);
    m_desk->takeCommands();
    queue->post(Command::Brightness, 41); // here as well
    m_desk->desk.applications().bringToFront(1);
    QCOMPARE(m_desk->takeCommands().filter("W "), (QStringList{"W 10=41", "W 22=13"})); // the page asks meanwhile
    QVERIFY(m_window->page(PageId::SystemSetting)->widget()->isVisible());              // the user is somewhere else
    QCOMPARE(m_window->tabs()->current(), 8);
    QTest::mouseClick(m_window->tabs()->tabs()[0], Qt::LeftButton);
    QVERIFY(entry(0, "Night Mode")->isChecked());
    QVERIFY(m_window->scenePage()->isVisible());
}

void TestWindowLinks::overlayNamesValues()
{
    for (const auto &[function, key, code, before, text, level] :
         {std::tuple(28, 'B', 0x63, 0, "HawkEye Vision: On", -1.0),
          {12, 'B', 0x10, 30, "Brightness: 40", 0.4},
          {28, 'C', 0x63, 1, "HawkEye Vision: Off", -1},
          {23, 'B', 0xF7, 0, "Audio Mute: Open", -1}, // as its page says
          {25, 'B', 0x34, 6, "Game Crosshair: Off", -1},
          {25, 'B', 0x34, 2, "Game Crosshair: Dotted cross", -1},
          {4, 'B', 0x22, 10, "Movie Mode: With the factory parameters", -1},
          {4, 'C', 0x22, 9, "Movie Mode: With your own parameters", -1}}) {
        start(10, 0, [function] { saveShortcuts({true, {{function, true, "Ctrl+B", "Ctrl+C"}}}); });
        m_desk->clock.advance(200ms);
        m_desk->monitor().setValue(0x3D, 1); // the crosshair is shown
        m_desk->monitor().setValue(static_cast<std::uint8_t>(code), static_cast<std::uint16_t>(before));
        m_desk->desk.pressKey(platform::kModifierControl, static_cast<std::uint32_t>(key));
        QCOMPARE(m_window->overlay()->text(), QString(text));
        QCOMPARE(m_window->overlay()->level().value_or(-1), level);
        cleanup();
    }
}

/// The note on the desktop that can be seen.
static QWidget *toast()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->inherits("DesktopToast") && window->isVisible())
            return window;
    }
    return nullptr;
}

void TestWindowLinks::overlayGoesByItself()
{
    start(10);
    HotkeyOverlay overlay;
    overlay.showNote(QStringLiteral("Brightness"), QStringLiteral("50"));
    m_desk->clock.advance(1000ms);
    const QRect shape = toast()->frameGeometry();
    overlay.showNote(QStringLiteral("Brightness, named at more length than a note is wide"), QStringLiteral("60"), 0.6);
    QCOMPARE(toast()->frameGeometry(), shape);
    overlay.showNote(QStringLiteral("Movie Mode"), QStringLiteral("With the factory parameters"));
    QCOMPARE(toast()->frameGeometry(), shape); // it does not jump
    m_desk->clock.advance(1000ms);
    QVERIFY(overlay.isShown()); // the second note has its own time
    m_desk->clock.advance(500ms);
    QVERIFY(!overlay.isShown());
    QVERIFY(setHotkeyOverlayOn(false));
    overlay.showNote(QStringLiteral("Brightness"), QStringLiteral("70"));
    QVERIFY(!overlay.isShown());
}

void TestWindowLinks::refusedHotKeyIsNotKept()
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

void TestWindowLinks::accessoryIsOpenedAndFollowed()
{
    start(10);
    virtualdesk::SimulatedAccessory &accessory = m_desk->desk.accessory();
    QVERIFY(accessoryLink.handle);
    QCOMPARE(accessory.handlesOpen(), 1);
    accessory.setPlugged(false);
    QVERIFY(accessoryLink.handle); // nobody noticed yet
    accessory.setPlugged(true);
    AccessoryReport report;
    buildLiveStop(report);
    QCOMPARE(writeHid(report), HidWrite::Done); // the arrival opened it anew
    QCOMPARE(accessory.handlesOpen(), 1);
    m_window.reset();
    QVERIFY(!accessoryLink.handle);
    QCOMPARE(accessory.handlesOpen() + accessory.handleFaults(), 0);
}

void TestWindowLinks::missingAccessoryIsTold()
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
            QCOMPARE(shown->defaultButton(), shown->buttons().first());
            QCOMPARE(shown->styleSheet(),
                     "QMessageBox {background-color: #101611;}QLabel{ color: white;}QDialogButtonBox "
                     "{qproperty-centerButtons: false;alignment: bottom right;}QMessageBox QPushButton { border: 1px "
                     "solid #8f8f91; border-radius: 4px; padding: 4px 12px; color: white;}");
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

void TestWindowLinks::busyModeStopsTheLiveDisplay()
{
    start(10);
    ledWorkThread *worker = ledWorkThread::instance();
    virtualdesk::SimulatedAccessory &accessory = m_desk->desk.accessory();
    auto *system = qobject_cast<pageLEDSystem *>(m_window->page(PageId::LedSystem)->widget());
    system->clockOptions()->buttonOf(1)->click();
    QTRY_VERIFY(accessory.state().showsLive);
    m_window->setInterfaceMode(kBusy);
    QCOMPARE(worker->state(), ledWorkThread::Stopped);
    QVERIFY(worker->wait(10000));
    QVERIFY(!accessory.state().showsLive);
    m_window->setInterfaceMode(kBusyEnded);
    QTRY_VERIFY(accessory.state().showsLive);

    SoundAnalyzer &analyzer = SoundAnalyzer::instance();
    auto *music = qobject_cast<pageLEDMusic *>(m_window->page(PageId::LedMusic)->widget());
    music->switchOptions()->buttonOf(1)->click();
    QTRY_VERIFY(analyzer.isCapturing());
    m_window->setInterfaceMode(kBusy);
    QTRY_VERIFY(!analyzer.isRunning());
    m_window->setInterfaceMode(kBusyEnded);
    QTRY_VERIFY(analyzer.isCapturing());
    system->clockOptions()->buttonOf(1)->click(); // which ends the music
    QTRY_VERIFY(accessory.state().showsLive && !analyzer.isRunning());
    m_window.reset(); // the program's end
    QVERIFY(worker->isFinished());
    QVERIFY(!accessory.state().showsLive);
    QVERIFY(analyzer.isFinished());
    QVERIFY(!m_desk->desk.accessory().state().showsLive);
}

void TestWindowLinks::uploadKeepsTheOthersAway()
{
    start(10);
    auto *page = qobject_cast<pageLEDMatrixCanvas *>(m_window->page(PageId::LedCanvas)->widget());
    virtualdesk::SimulatedAccessory &accessory = m_desk->desk.accessory();
    const auto free = [this] {
        const auto &buttons = m_window->leftBar(kAccessoryFamily)->buttons();
        return std::count_if(buttons.begin(), buttons.end(), [](const auto *button) { return button->isEnabled(); });
    };
    const auto all = free();
    const auto finished = [page] { return !page->isBusy(); };
    page->saveAnimate();
    QVERIFY(QTest::qWaitFor(finished));
    page->writeAnimate();
    QCOMPARE(free(), 1);
    m_window->setInterfaceMode(kLocked); // the scene changes meanwhile
    QCOMPARE(free(), 0);
    m_window->setInterfaceMode(kByModel);
    QCOMPARE(free(), 1);
    m_window->setInterfaceMode(kLocked);
    QVERIFY(QTest::qWaitFor(finished));
    QVERIFY(accessory.state().upload.isComplete());
    QVERIFY(free() == 0 && !m_window->tabs()->tabs().front()->isEnabled()); // it still does
    m_window->setInterfaceMode(kByModel);
    QCOMPARE(free(), all);

    const std::stop_token ended = uploadStop();
    const int listener = accessory.addListener([&accessory, &ended] {
        const QDeadlineTimer patience(10000);
        while (accessory.state().uploads == 2 && !ended.stop_requested() && !patience.hasExpired())
            std::this_thread::yield();
    });
    page->writeAnimate();
    m_window.reset(); // the program's end
    accessory.removeListener(listener);
    QVERIFY(accessory.state().uploads == 1 || accessory.state().upload.received == 0);
}

/// Drawn frames that no file holds: the tray's Exit and everything that restarts the program ask about them.
void TestWindowLinks::exitAsksOnce()
{
    start(10);
    m_window->showWindow();
    QWidget *page = m_window->page(PageId::LedCanvas)->widget();
    m_window->leave();
    QCOMPARE(m_desk->desk.process().quits, 1); // nothing to lose
    auto *editor = page->findChild<MatrixEditor *>();
    QTest::keyClick(editor, Qt::Key_Space);
    for (const auto &[key, quits] : {std::pair{Qt::Key_Escape, 1}, {Qt::Key_Return, 2}}) {
        int boxes = 0;
        QTimer::singleShot(0, this, [&, key = key] {
            ++boxes;
            QVERIFY(!m_window->mayLeave() && !m_desk->session().mayLeave()); // the box is there already
            QTest::keyClick(QApplication::activeModalWidget(), key);
        });
        m_window->leave();
        QCOMPARE(boxes, 1);
        QCOMPARE(m_desk->desk.process().quits, quits);
    }
    QVERIFY(QFile::exists(QLatin1String(pageLEDMatrixCanvas::kDataFile)));
    QVERIFY(m_desk->session().mayLeave());
}

/// Whoever presses "Retry" once more, as the monitor is back already, presses nothing else.
void TestWindowLinks::retryPressedOnceMore()
{
    start(10);
    m_window->activateWindow();
    QTRY_VERIFY(m_window->isActiveWindow());
    auto *retry = m_window->findChild<QPushButton *>(QStringLiteral("retry"));
    m_desk->desk.unplug(0);
    m_desk->clock.advance(300ms);
    retry->setFocus(Qt::TabFocusReason);
    QVERIFY(retry->hasFocus());
    m_desk->desk.plug(0);
    m_desk->clock.advance(5s);
    QVERIFY(retry->isHidden());
    QCOMPARE(m_window->focusWidget(), retry->parentWidget());
}

QTEST_MAIN(TestWindowLinks)
#include "tst_windowlinks.moc"
