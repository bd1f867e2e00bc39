#include <QtTest>
#include <QtWidgets>

#include "controls/tooltips.h"
#include "ddc_protocol/devicestate.h"
#include "following/followlist.h"
#include "page/Following/followrow.h"
#include "page/Following/pagescenariofollowing.h"
#include "support/deskfixture.h"

using namespace std::chrono_literals;

namespace {

const QString kFile = QStringLiteral("scenceSetting.ini");

enum Program : std::size_t { Game, Film, Other, Protected, Gone, Deep, SameName, OtherCase };

/// The page, with its file dialog answered by the test.
class TestedPage : public pageScenarioFollowing
{
public:
    QString answer;

protected:
    QString askForProgram() override { return answer; }
};

} // namespace

class TestFollowing : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void followsAndReturns();
    void shortVisitsLeaveTheScene();
    void baseMode();
    void nothingToFollow();
    void changesCountWhenApplied();
    void fileNames();
    void loading();
    void veryLongFile();

private:
    void start(const std::vector<FollowEntry> &entries);
    QStringList front(Program program, std::chrono::milliseconds later = 1s);
    FollowRow *row(std::size_t index) const { return m_page->followRow(index); }
    QPushButton *button(const char *name) const { return m_page->findChild<QPushButton *>(QLatin1String(name)); }

    std::unique_ptr<TestedPage> m_page;
    qint64 m_waited = 0; ///< ms from a program's coming to the front to the last request
};

void TestFollowing::init()
{
    DeskSuite::init();
    findDevices();
    m_desk->desk.applications().setList({{QStringLiteral("D:\\Games\\Race.exe")},
                                         {QStringLiteral("C:\\Film\\film.exe")},
                                         {QStringLiteral("C:\\Windows\\notes.exe")},
                                         {QStringLiteral("C:\\Windows\\task.exe"), true},
                                         {QStringLiteral("C:\\Windows\\gone.exe"), false, false},
                                         {QStringLiteral("C:\\") + QString(250, QLatin1Char('d')) + "\\deep.exe"},
                                         {QStringLiteral("E:\\Elsewhere\\Race.exe")},
                                         {QStringLiteral("D:\\Games\\race.exe")}});
}

void TestFollowing::cleanup()
{
    m_page.reset();
    QCOMPARE(m_desk->desk.applications().processesOpen(), 0);
    DeskSuite::cleanup();
}

void TestFollowing::start(const std::vector<FollowEntry> &entries)
{
    m_page.reset();
    QVERIFY(saveFollowList(entries));
    m_page = std::make_unique<TestedPage>();
    m_desk->takeCommands();
}

/// Brings a program to the front some time later; what the monitor was then asked.
QStringList TestFollowing::front(Program program, std::chrono::milliseconds later)
{
    m_desk->clock.advance(later);
    m_desk->clock.takeWaits();
    const QDateTime begin = m_desk->clock.now();
    const int listener = m_desk->monitor().addListener(
        [this, begin](const virtualdesk::Request &) { m_waited = begin.msecsTo(m_desk->clock.now()); });
    m_desk->desk.applications().bringToFront(program);
    m_desk->monitor().removeListener(listener);
    return m_desk->takeCommands();
}

void TestFollowing::followsAndReturns()
{
    start({{QStringLiteral("D:/Games/Race.exe"), 6}, {QStringLiteral("C:/Film/film.exe"), 11}});
    QCOMPARE(front(Game), QStringList{"W 22=13"});
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>(150, 1)); // a millisecond at a time
    QCOMPARE(m_waited, 150);                                 // the write behind them
    QCOMPARE(front(Game), QStringList());                    // it is on already
    QCOMPARE(m_desk->clock.takeWaits().size(), 150);         // but only known after the wait
    QCOMPARE(front(Film), QStringList{"W 22=29"});
    QCOMPARE(deviceState.value(Command::SceneMode), 29);
    m_waited = 0;
    QCOMPARE(front(Other), QStringList{"W 22=1"});
    QCOMPARE(m_waited, 150);
    QCOMPARE(front(Other), QStringList());
    QCOMPARE(m_desk->clock.takeWaits().size(), 0);
    QCOMPARE(front(SameName), QStringList{"W 22=13"}); // folders are not told apart
    QCOMPARE(front(OtherCase), QStringList{"W 22=1"}); // letter case is
}

void TestFollowing::shortVisitsLeaveTheScene()
{
    start({{QStringLiteral("D:/Games/Race.exe"), 6}});
    front(Game);
    QCOMPARE(front(Other, 299ms), QStringList());
    QCOMPARE(front(Other, 1ms), QStringList{"W 22=1"}); // the next change decides
    front(Game);
    front(Game, 5s);
    QCOMPARE(front(Other, 200ms), QStringList()); // each match counts, also one that wrote nothing
    m_desk->clock.setNow(m_desk->clock.now().addSecs(-3600));
    QCOMPARE(front(Other, 0ms), QStringList{"W 22=1"}); // a clock that was set back holds up nothing
}

void TestFollowing::baseMode()
{
    for (const auto &[capabilities, base] :
         {std::pair{0, "W 22=1"}, {static_cast<int>(Capability::ExtraScene), "W 22=23"}}) {
        deviceState.store(Command::Capability, capabilities);
        start({});
        QCOMPARE(front(Other), QStringList{base}); // once, without any program in the list
        QCOMPARE(front(Game), QStringList());
    }
}

void TestFollowing::nothingToFollow()
{
    start({{QStringLiteral("C:/Windows/task.exe"), 2}});
    virtualdesk::Applications &applications = m_desk->desk.applications();
    for (const Program program : {Protected, Gone})
        QCOMPARE(front(program), QStringList());
    QCOMPARE(applications.titlesRead(), 0);
    QCOMPARE(front(Deep), QStringList{"W 22=1"}); // not listed, for its path cannot be told
    QCOMPARE(applications.titlesRead(), 1);
    applications.raiseEvent(3, nullptr);
    applications.raiseEvent(4, reinterpret_cast<void *>(0x20001));
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_page.reset(); // the hook goes with it
    QVERIFY(!applications.isHooked());
    QCOMPARE(front(Other), QStringList());
}

void TestFollowing::changesCountWhenApplied()
{
    start({{QStringLiteral("D:/Games/Race.exe"), 6}});
    for (const int scene : {0, 6, 0}) { // also back
        row(0)->sceneBox()->setCurrentIndex(scene);
        QCOMPARE(button("pushButtonApply")->property("waiting").toBool(), scene == 0);
    }
    m_page->answer = QStringLiteral("C:/Film/film.exe");
    button("pushButtonAdd")->click();
    m_page->updateControlText(); // as after every refresh of the window
    QCOMPARE(front(Game), QStringList{"W 22=13"});
    QCOMPARE(front(Film), QStringList{"W 22=1"}); // not in the list yet: the base mode
    button("pushButtonApply")->click();
    row(1)->trashButton()->click();
    QCOMPARE(front(Other), QStringList());
    QCOMPARE(m_page->programs().size(), std::size_t(1));
    QCOMPARE(loadFollowList().size(), std::size_t(2)); // until it is applied
    button("pushButtonApply")->click();
    QCOMPARE(loadFollowList(), (std::vector<FollowEntry>{{QStringLiteral("D:/Games/Race.exe"), 0}}));
}

void TestFollowing::fileNames()
{
    const QByteArray text = "[My%20Film.exe]\nappPath=C:/Film/My Film.exe\nappScence=11\n\n"
                            "[Race.exe]\nappPath=D:/Games/Race.exe\nappScence=0\n";
    writeText(kFile, text);
    m_page = std::make_unique<TestedPage>(); // it stores what it read
    QCOMPARE(readText(kFile), text);
    const std::vector<FollowEntry> entries = {{QStringLiteral("C:/a b/.hidden.tar.gz"), 1},
                                              {QStringLiteral("/opt/100%, [x]=y;z.exe"), 2},
                                              {QStringLiteral("C:/Race.exe"), 3},
                                              {QStringLiteral("C:/race.exe"), 4},
                                              {QStringLiteral("C:/映画 é.exe"), 5},
                                              {QStringLiteral("C:/General"), 6},
                                              {QStringLiteral("C:/@At.exe"), 7},
                                              {QStringLiteral("C:/<b>Two\nlines.exe"), 8}};
    start(entries);
    const auto *name = row(2)->findChild<QLabel *>(); // the groups are in order
    QCOMPARE(name->text(), QStringLiteral("<b>Two lines.exe"));
    QVERIFY(tipText(name->toolTip()).contains(QStringLiteral("&lt;b&gt;")));
    QCOMPARE(m_page->programs().size(), entries.size());
    for (const FollowEntry &entry : loadFollowList())
        QVERIFY2(std::find(entries.begin(), entries.end(), entry) != entries.end(), qPrintable(entry.path));
    m_page->answer = QStringLiteral("C:/<i>a.exe"); // shown as it stands also where the toolkit knows rich text
    button("pushButtonAdd")->click();
    QTextDocument tip;
    tip.setHtml(tipText(row(entries.size())->findChild<QLineEdit *>("path")->toolTip()));
    QCOMPARE(tip.toPlainText(), QDir::toNativeSeparators(m_page->answer));
    m_page->answer = QStringLiteral("D:/other/Race.exe");
    button("pushButtonAdd")->click();
    QCOMPARE(m_page->programs().size(), entries.size() + 1);
    QVERIFY(m_page->notice().contains(QStringLiteral("Race.exe")));
}

void TestFollowing::loading()
{
    for (const auto &[text, rows] : // path and scene that is shown
         {std::pair(QByteArray(), QStringList()),
          {"[a.exe]\nappScence=3\n[b.exe]\nappPath=C:/b.exe\n", {"C:/b.exe 0"}},
          {"[a.exe]\nappPath=C:/a.exe\nappScence=12\n[b.exe]\nappPath=C:/b.exe\nappScence=-1\n"
           "[c.exe]\nappPath=C:/c.exe\nappScence=x\n",
           {"C:/a.exe 0", "C:/b.exe 0", "C:/c.exe 0"}},
          {"[a.exe]\nappPath=C:/x, y/a.exe\nappScence=1\n", {"C:/x, y/a.exe 1"}}, // a comma without quotes
          {"[a]\nappPath=C:/a.exe\n[b]\nappPath=D:/a.exe\n", {"C:/a.exe 0"}},     // two groups, one file
          {"appPath=C:/a.exe\n", {}},
          {"[a]\nappPath=C:/\n[b]\nappPath=\n", {}}, // no group, no file
          {"<html>\n\1\2\3\n[a]\nx=1\n", {}}}) {
        writeText(kFile, text);
        m_page.reset();
        m_page = std::make_unique<TestedPage>();
        QStringList shown;
        for (std::size_t i = 0; i < m_page->programs().size(); ++i)
            shown.append(QStringLiteral("%1 %2").arg(row(i)->path()).arg(row(i)->sceneBox()->currentIndex()));
        QCOMPARE(shown, rows);
    }
}

void TestFollowing::veryLongFile()
{
    QByteArray text;
    for (int i = 0; i < 16000; ++i) {
        const QByteArray name = "p" + QByteArray::number(i) + ".exe";
        text += "[" + name + "]\nappPath=C:/" + name + "\nappScence=5\n";
    }
    text += "[zz.exe]\nappPath=D:/Games/Race.exe\nappScence=6\n";
    writeText(kFile, text);
    m_page = std::make_unique<TestedPage>();
    QCOMPARE(loadFollowList().size(), std::size_t(16001)); // none is lost
    QCOMPARE(front(Game), QStringList{"W 22=13"});         // and each is followed
    m_page->show();
    row(16000)->sceneBox()->setCurrentIndex(2); // can be seen, changed and deleted
    row(8000)->trashButton()->click();
    QCOMPARE(row(15999)->sceneBox()->currentIndex(), 2);
    QVERIFY(m_page->findChildren<FollowRow *>().size() < 30); // whatever was looked at
    button("pushButtonApply")->click();
    QCOMPARE(loadFollowList().front(), (FollowEntry{QStringLiteral("D:/Games/Race.exe"), 2}));
    row(15970)->sceneBox()->setFocus();
    QTRY_VERIFY(QApplication::focusWidget());
    for (int place = 1, way = 1; place >= 0; place += way) { // two controls a row, by Tab to the end and back
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, way > 0 ? Qt::NoModifier : Qt::ShiftModifier);
        const QWidget *now = QApplication::focusWidget();
        QCOMPARE(now->visibleRegion().boundingRect(), now->rect());
        const FollowRow *there = row(static_cast<std::size_t>(15970 + place / 2));
        QCOMPARE(now, place % 2 == 0 ? static_cast<QWidget *>(there->sceneBox()) : there->trashButton());
        way = place == 59 ? -1 : way;
    }
    row(0); // out of sight, the row with the focus keeps its program
    QCOMPARE(qobject_cast<FollowRow *>(QApplication::focusWidget()->parentWidget())->index(), 15970);
    row(15999)->trashButton()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); // takes its row with it
    QVERIFY(QApplication::focusWidget()->isVisible());
}

QTEST_MAIN(TestFollowing)
#include "tst_following.moc"
