#include <thread>

#include <QFileDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "controls/filequestion.h"
#include "controls/messagebox.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/transport.h"
#include "page/Scene/pagescenesetting.h"
#include "platform/ending.h"
#include "platform/systemclock.h"
#include "relaunch.h"
#include "support/sounds.h"
#include "support/windowfixture.h"
#include "usb-hid/accessoryupload.h"

/// How the program ends, whatever is under way.
class TestEnding : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void questions();
    void sleepersWake();
    void linksAreLetGo();
    void readUnderItsDialogIsCut();
    void sessionEnd();
};

void TestEnding::questions()
{
    using Deed = std::pair<const char *, bool>;
    for (const auto &[deed, yes] : {Deed{"Enter", true},
                                    {"Escape", false},
                                    {"close", false},
                                    {"end", false},
                                    {"its window goes", false},
                                    {"file", false}}) {
        const QLatin1String does(deed);
        auto window = std::make_unique<QWidget>();
        bool answer = !yes;
        QTimer::singleShot(0, this, [&answer, &window, does] {
            answer = does == "file" ? !askForFile(window.get(), "a", {}, "b (*.c)").isEmpty()
                                    : askYesNo("a", "b", window.get());
            QCoreApplication::exit();
        });
        QTimer::singleShot(1, this, [&window, does] {
            QWidget *box = QApplication::activeModalWidget();
            const auto *file = qobject_cast<QFileDialog *>(box); // the system's would not end
            QVERIFY((file && file->testOption(QFileDialog::DontUseNativeDialog)) == (does == "file"));
            if (does == "Enter" || does == "Escape")
                QTest::keyClick(box, does == "Enter" ? Qt::Key_Enter : Qt::Key_Escape);
            else if (does == "close")
                box->close();
            else if (does == "its window goes")
                window.reset();
            else
                QCoreApplication::exit();
        });
        QCoreApplication::exec();
        QVERIFY2(answer == yes, deed);
    }
}

void TestEnding::sleepersWake()
{
    platform::SystemClock clock;
    std::thread sleeper([&clock] { QVERIFY(!clock.sleepBeforeRetry(std::chrono::hours(1))); });
    clock.end();
    sleeper.join();
    clock.sleepUnlessStopped(std::chrono::hours(1), {}); // and nobody sleeps any more
}

void TestEnding::linksAreLetGo()
{
    start(10);
    m_desk->monitor().goDeaf();
    QList<int> reported;
    QVERIFY(!uploadText("none", [&reported](int percent) {
        reported.append(percent);
        platform::endProgram();
    }));
    QCOMPARE(reported, QList<int>{4});
    m_desk->takeRequests();
    QCOMPARE(Korvu_GetCommandVal(readRow(Command::Brightness), kRetryCount), -1);
    Korvu_ReadCommandTable(readRow(Command::SceneMode), 10, 40);
    QVERIFY(!Korvu_SetCommandVal(writeRow(Command::Brightness), 3, kRetryCount));
    QCOMPARE(m_desk->takeRequests(), QStringList("W 99=3!")); // once, and the monitor is not looked for
    QVERIFY(relaunchAndQuit());
    QCOMPARE(m_desk->desk.process().started.size(), std::size_t(0));
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

void TestEnding::sessionEnd()
{
    for (const bool music : {false, true}) { // or the clock
        start(10);
        const auto shown = [this] { return m_desk->desk.accessory().state().showsLive; };
        m_desk->desk.sound().play(playing(virtualdesk::Sound::Tone));
        const PageId page = music ? PageId::LedMusic : PageId::LedSystem;
        m_window->page(page)->widget()->findChild<QPushButton *>(music ? "Music Mode_Open" : "Clock_Open")->click();
        QTRY_VERIFY(shown());
        {
            const auto busy = lockTransport();
            m_window->scenePage()->slider("Brightness")->slider()->setSliderPosition(17);
        }
        QVERIFY(m_desk->desk.process().endSession());
        QVERIFY(!shown());
        QCOMPARE(int(m_desk->monitor().value(0x10)), 17);
        QCOMPARE(m_desk->desk.process().quits, 1);
        QVERIFY(m_window->close()); // not to the tray
        cleanup();
    }
}

QTEST_MAIN(TestEnding)
#include "tst_ending.moc"
