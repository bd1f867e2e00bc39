#include <thread>

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/transport.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/pageledmusic.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "platform/ending.h"
#include "platform/systemclock.h"
#include "relaunch.h"
#include "support/datarow.h"
#include "support/sounds.h"
#include "support/windowfixture.h"
#include "usb-hid/accessoryupload.h"

/// How the program ends, whatever is under way.
class TestEnding : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void questions_data();
    void questions();
    void sleepersWake();
    void monitorIsLetGo();
    void uploadIsLetGo();
    void readUnderItsDialogIsCut();
    void sessionEnd_data();
    void sessionEnd();
};

void TestEnding::questions_data()
{
    columns<QString, bool>("deed", "answer");
    row("Yes", "Yes", true);
    row("No", "No", false);
    row("Escape", "Escape", false);
    row("closed", "close", false);
    row("the program ends", "end", false);
    row("its window goes", "window", false);
    row("a question for a file", "file", false);
}

void TestEnding::questions()
{
    QFETCH(QString, deed);
    auto window = std::make_unique<QWidget>();
    bool answer = true;
    QTimer::singleShot(0, this, [&] {
        answer = deed == "file" ? !askForFile(window.get(), "a", {}, "b (*.c)").isEmpty()
                                : askYesNo("a", "b", window.get());
        QCoreApplication::exit();
    });
    QTimer::singleShot(1, this, [&] {
        QWidget *box = QApplication::activeModalWidget();
        for (QPushButton *button : box->findChildren<QPushButton *>()) {
            if (button->text() == deed)
                return button->click();
        }
        const auto *file = qobject_cast<QFileDialog *>(box); // the system's would not end
        QVERIFY((file && file->testOption(QFileDialog::DontUseNativeDialog)) == (deed == "file"));
        if (deed == "Escape")
            QTest::keyClick(box, Qt::Key_Escape);
        else if (deed == "close")
            box->close();
        else if (deed == "window")
            window.reset();
        else
            QCoreApplication::exit();
    });
    QCoreApplication::exec();
    QTEST(answer, "answer");
}

void TestEnding::sleepersWake()
{
    platform::SystemClock clock;
    std::thread sleeper([&clock] { QVERIFY(!clock.sleepBeforeRetry(std::chrono::hours(1))); });
    clock.end();
    sleeper.join();
    clock.sleepUnlessStopped(std::chrono::hours(1), {}); // and nobody sleeps any more
}

void TestEnding::monitorIsLetGo()
{
    start(10);
    m_desk->monitor().goDeaf();
    platform::endProgram();
    m_desk->takeRequests();
    QCOMPARE(Korvu_GetCommandVal(readRow(Command::Brightness), kRetryCount), -1);
    QVERIFY(!readCommandOnce(readRow(Command::Brightness)));
    Korvu_ReadCommandTable(readRow(Command::SceneMode), 10, 40);
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QVERIFY(!Korvu_SetCommandVal(writeRow(Command::Brightness), 3, kRetryCount));
    QCOMPARE(m_desk->takeRequests(), QStringList("W 99=3!")); // once, and the monitor is not looked for
    relaunchAndQuit();
    QCOMPARE(m_desk->desk.started.size(), std::size_t(0));
    QCOMPARE(m_desk->desk.quits, 1);
}

void TestEnding::uploadIsLetGo()
{
    start(10);
    QList<int> reported;
    QVERIFY(!uploadText("none", [&reported](int percent) {
        reported.append(percent);
        platform::endProgram();
    }));
    QCOMPARE(reported, QList<int>{4});
}

void TestEnding::readUnderItsDialogIsCut()
{
    start(10);
    reloadEdidType = kFullRead;
    m_desk->takeRequests();
    QTimer::singleShot(0, this, [] { platform::endProgram(); });
    m_desk->session().searchDevices(); // would end the process if it took the monitor for a dead one
    QVERIFY(m_desk->takeRequests().size() < 20);
    QVERIFY(!m_window->isVisible()); // and it is not shown again
}

void TestEnding::sessionEnd_data()
{
    columns<bool>("music");
    row("the clock is shown", false);
    row("music is shown", true);
}

void TestEnding::sessionEnd()
{
    QFETCH(bool, music);
    start(10);
    m_desk->desk.sound().play(playing(virtualdesk::Sound::Tone));
    auto *page = qobject_cast<pageLEDMusic *>(m_window->page(PageId::LedMusic)->widget());
    const auto accessory = [this] { return m_desk->desk.accessory().state(); };
    if (music)
        page->switchOptions()->buttonOf(1)->click();
    else
        ledWorkThread::instance()->begin(ledWorkThread::ClockLoop);
    QTRY_VERIFY(accessory().showsLive);
    {
        const auto busy = lockTransport();
        m_window->scenePage()->slider("Brightness")->slider()->setSliderPosition(17);
    }
    QVERIFY(m_desk->desk.endSession());
    QVERIFY(!accessory().showsLive);
    QCOMPARE(int(m_desk->monitor().value(0x10)), 17);
    QCOMPARE(m_desk->desk.quits, 1);
    QVERIFY(m_window->isVisible() && m_window->close()); // not to the tray
}

QTEST_MAIN(TestEnding)
#include "tst_ending.moc"
