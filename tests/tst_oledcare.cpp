#include <QPushButton>
#include <QtTest>

#include "controls/desktopquestion.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "page/OledCare/carepanel.h"
#include "page/OledCare/pageoledcare.h"
#include "support/sessiondesk.h"

using namespace std::chrono_literals;
using platform::milliseconds;

Q_DECLARE_METATYPE(CareFacts)
Q_DECLARE_METATYPE(CarePresence)

static const QDateTime kNow(QDate(2026, 3, 9), QTime(12, 0));
static constexpr qint64 kHour = 3600;

namespace {

QDateTime ago(int minutes)
{
    return kNow.addSecs(-60 * minutes);
}

/// The page without a question that would hold up the test.
class AskedPage : public pageOledCare
{
public:
    using pageOledCare::pageOledCare;
    bool answer = false;
    int asked = 0;
    std::function<void()> meanwhile = [] {};

protected:
    bool mayBegin() override
    {
        ++asked;
        meanwhile();
        return answer;
    }
};

} // namespace

/// Care of an OLED panel: what is planned, what is remembered, and what is done of it.
class TestOledCare : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void plan_data();
    void plan();
    void reminder_data();
    void reminder();
    void history_data();
    void history();
    void fromUseToReminder();
    void fromReminderToCare();
    void careIsRefused();
    void panelsApart();

private:
    /// Lets time pass, and what it brings happen at its time.
    void pass(milliseconds time, milliseconds step = 10s)
    {
        for (milliseconds done = 0ms; done < time; done += step) {
            m_desk->clock.advance(step);
            QVERIFY(QTest::qWaitFor([this] { return m_queue->isIdle(); }));
            QCoreApplication::processEvents();
        }
    }
    std::pair<QStringList, QStringList> useForFourHours();
    bool isReminded() const { return m_page->reminder() && m_page->reminder()->isVisible(); }

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<CommandQueue> m_queue;
    std::unique_ptr<AskedPage> m_page;
};

void TestOledCare::init()
{
    m_desk = std::make_unique<SessionDesk>(10);
    m_queue = std::make_unique<CommandQueue>();
    for (const auto &[command, value] : {std::pair(Command::CareDue, 0),
                                         {Command::CareRunning, 0},
                                         {Command::CareMode, 1},
                                         {Command::CareInterval, 0}})
        deviceState.told(command, value);
    m_page = std::make_unique<AskedPage>(*m_queue);
    m_desk->takeCommands();
}

void TestOledCare::cleanup()
{
    m_page.reset();
    m_queue.reset();
    m_desk.reset();
}

void TestOledCare::plan_data()
{
    columns<CareFacts, QString, int>("facts", "step", "minutes to the next look");
    CareFacts four; // hours
    four.isDue = false;
    four.interval = 4;
    const auto with = [](CareFacts facts, auto change) {
        change(facts);
        return facts;
    };
    const auto used = [&](double hours) {
        return with(four, [hours](CareFacts &facts) { facts.used = qint64(hours * kHour); });
    };
    const CareFacts due = with(used(5), [](CareFacts &facts) { facts.isDue = true; });
    const CareFacts unknown = with(used(5), [](CareFacts &facts) { facts.isDue.reset(), facts.interval.reset(); });
    row("new", four, "", 30);
    row("soon", used(3.9), "", 6);
    row("over, by the count", used(4), "asks", 30);
    row("over, just asked", with(used(4), [](CareFacts &facts) { facts.asked = ago(59); }), "", 30);
    row("over, asked long ago", with(used(4), [](CareFacts &facts) { facts.asked = ago(60); }), "asks", 30);
    row("over, clock set back", with(used(4), [](CareFacts &facts) { facts.asked = ago(-999); }), "asks", 30);
    row("over, nothing told", with(used(4), [](CareFacts &facts) { facts.isDue.reset(); }), "asks reminds", 0);
    row("due", due, "reminds", 0);
    row("due before its hours", with(due, [](CareFacts &facts) { facts.used = 60; }), "reminds", 0);
    row("not wanted", with(due, [](CareFacts &facts) { facts.reminds = false; }), "", 30);
    row("put off", with(due, [](CareFacts &facts) { facts.putOff = ago(-20); }), "", 20);
    row("was put off", with(due, [](CareFacts &facts) { facts.putOff = ago(0); }), "reminds", 0);
    row("begins by itself", with(due, [](CareFacts &facts) { facts.isByItself = true; }), "", 30);
    row("and could not", with(due, [](CareFacts &facts) { facts.isByItself = true, facts.used = 8 * kHour; }),
        "reminds", 0);
    row("running", with(due, [](CareFacts &facts) { facts.isRunning = true; }), "asks", 0);
    row("nothing is known", unknown, "asks", 30);
}

void TestOledCare::plan()
{
    const auto [facts, step, minutes] = fetch<CareFacts, QString, int>();
    const CareStep found = planCare(facts, kNow);
    QCOMPARE(QString(found.asks ? "asks " : "") + (found.reminds ? "reminds" : ""), step + (step == "asks" ? " " : ""));
    QCOMPARE(int(kNow.secsTo(found.lookAgain) / 60), minutes);
    QVERIFY(found.lookAgain > kNow);
}

void TestOledCare::reminder_data()
{
    columns<CarePresence, int>("presence", "step");
    const auto step = [](ReminderStep which) { return static_cast<int>(which); };
    row("at work", CarePresence{0ms}, step(ReminderStep::Stay));
    row("away", CarePresence{2min}, step(ReminderStep::Show));
    row("between programs", CarePresence{0ms, false, true}, step(ReminderStep::Show));
    row("away from a film", CarePresence{2h, true, true}, step(ReminderStep::Stay));
    row("a film begins", CarePresence{0ms, true, true, ago(0)}, step(ReminderStep::Hide));
    row("shown", CarePresence{0ms, false, false, kNow.addSecs(-59)}, step(ReminderStep::Stay));
    row("not answered", CarePresence{0ms, false, false, ago(1)}, step(ReminderStep::PutOff));
    row("nobody to answer", CarePresence{2min, false, false, ago(1)}, step(ReminderStep::Stay));
}

void TestOledCare::reminder()
{
    const auto [presence, step] = fetch<CarePresence, int>();
    QCOMPARE(static_cast<int>(planReminder(presence, kNow)), step);
}

void TestOledCare::history_data()
{
    columns<QString, QString>("told", "kept"); // due and running as told, one after the other; o: asked when over
    const QString care = QStringLiteral("used:0 last:2026-03-09T12:00:00 2026-03-09:1800:1");
    row("not due", "0-", "used:1800 2026-03-09:1800:0");
    row("due", "1-", "used:1800 due:1 2026-03-09:1800:0");
    row("due, and then not", "1- 0-", care);
    row("begun by hand", "0r 0-", care);
    row("begun when due", "1- 1r 0r 0-", care);
    row("cut off", "1- 1r 1-", "used:1800 due:1 2026-03-09:1800:0");
    row("unseen", "0o", care);
    row("told late", "?r ?- 0-", care);
}

void TestOledCare::history()
{
    const auto [told, kept] = fetch<QString, QString>();
    CareHistory history;
    history.use(ago(600), kNow); // most of which it slept
    history.use(kNow, ago(1));
    int cares = 0;
    for (const QString &one : told.split(' ')) {
        const auto due = one[0] == '?' ? std::nullopt : std::optional(one[0] == '1');
        cares += history.note(due, one[1] == 'r', one[1] == 'o', kNow);
    }
    QCOMPARE(history.text(), kept);
    QCOMPARE(cares, kept.contains("last") ? 1 : 0);
    history.wasRunning = false;
    QVERIFY(CareHistory::fromText(kept + " 2026-13-01:5:5 last:never x", kNow) == history);
    QString ahead = kept + " last:2099-01-01T00:00:00 later:2027-03-09T12:00:00";
    for (int day = 1; day <= CareHistory::kDaysKept; ++day)
        ahead += kNow.addDays(day).toString(" yyyy-MM-dd:9:9");
    const CareHistory now = CareHistory::fromText(ahead, kNow);
    QVERIFY(!now.last && !now.putOff && now.days.size() == 2 && now.days.front() == history.days.front());
    for (int day = 0; day < 2 * CareHistory::kDaysKept; ++day)
        history.use(kNow.addDays(day), kNow.addDays(day).addSecs(60));
    QCOMPARE(int(history.days.size()), CareHistory::kDaysKept);
    QVERIFY(history.text().size() < 1024);
}

/// What was asked of the monitor before and after the four hours that its care comes after.
std::pair<QStringList, QStringList> TestOledCare::useForFourHours()
{
    pass(3h + 59min, 1min);
    const QStringList before = m_desk->takeCommands();
    m_desk->monitor().setValue(0x08, 1);
    pass(3min);
    return {before, m_desk->takeCommands()};
}

void TestOledCare::fromUseToReminder()
{
    virtualdesk::UserSetup &user = m_desk->desk.user;
    virtualdesk::Applications &programs = m_desk->desk.applications();
    QCOMPARE(useForFourHours(), std::pair(QStringList(), QStringList({"R 05", "R 08"}))); // nothing polls
    programs.bringToFront(0);
    for (const auto &[state, idle, front, shown] : {std::tuple(5, 0ms, 0, false),
                                                    {3, milliseconds(1h), 1, false},
                                                    {5, 0ms, 2, true},
                                                    {2, 0ms, 1, false},
                                                    {5, 0ms, 1, false},
                                                    {5, milliseconds(1h), 1, true}}) {
        user = {idle, state};
        programs.bringToFront(std::size_t(front));
        pass(20s);
        QVERIFY2(isReminded() == shown, qPrintable(QString::number(state) + QString::number(front)));
    }
    pass(3h, 1min);
    QVERIFY(isReminded()); // it waits for somebody
    m_page->reminder()->laterButton()->click();
    pass(59min);
    QVERIFY(!isReminded());
    pass(2min);
    QVERIFY(isReminded());
    QCOMPARE(m_desk->takeCommands().filter("W"), QStringList());
}

void TestOledCare::fromReminderToCare()
{
    useForFourHours();
    m_desk->desk.user = {milliseconds(1h), 5}; // nobody is disturbed
    pass(20s);
    QVERIFY(isReminded());
    m_desk->takeCommands();
    m_page->reminder()->yesButton()->click();
    QVERIFY(m_page->asked == 1 && !isReminded());
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_page->build(); // not needed before
    m_page->answer = true;
    m_page->carePanel()->startButton()->click();
    pass(1min);
    QCOMPARE(m_desk->takeCommands().join(' '), QString("W 0e=1 R 05 R 08 R 05 R 08 R 05 R 08")); // each half minute
    m_page->carePanel()->startButton()->click();
    QVERIFY(m_page->asked == 2 && m_page->notice().contains("running"));
    QVERIFY(QFile::remove(kConfigFile) && QDir().mkdir(kConfigFile)); // what is counted anew cannot be stored yet
    pass(6min);
    QVERIFY(!isReminded() && QDir().rmdir(kConfigFile));
    m_desk->takeCommands();
    const CareHistory &history = m_page->keeper().history();
    QVERIFY(history.last && history.used < 120 && history.days.back().cares == 1);
    m_page->show();
    const QString said = m_page->carePanel()->lines().join('|');
    QVERIFY2(said.contains("0.0 hours of use since") && said.contains("after 4.0 more"), qPrintable(said));
    const QDateTime last = *history.last;
    pass(31min, 1min);
    const auto stored = readAllSettings(kConfigFile);
    QVERIFY(std::ranges::any_of(stored, [](const auto &each) { return each.second.contains("last:"); }));
    pass(1s, 1s);                 // until the page has been told what it asked for
    deviceState.forgetSettings(); // as when the program starts
    m_desk->monitor().setValue(0x08, 1);
    m_page = std::make_unique<AskedPage>(*m_queue);
    pass(2s, 1s);
    QCOMPARE(m_page->keeper().history().last, std::optional(last));
    QVERIFY(m_page->keeper().facts().isDue == true && m_page->keeper().facts().interval == 4);
}

void TestOledCare::careIsRefused()
{
    m_page->show();
    m_page->answer = true;
    m_desk->monitor().refuse(0x0E, 2);
    m_page->carePanel()->startButton()->click();
    QVERIFY(m_page->notice().contains("Start care"));
    QCOMPARE(int(m_desk->monitor().value(0x05)), 0);
    m_page->findChild<QAbstractButton *>("stripAction")->click();
    QCOMPARE(int(m_desk->monitor().value(0x05)), 1);
    QVERIFY(m_page->asked == 1 && m_page->notice().isEmpty());

    deviceState.told(Command::CareRunning, 0);
    m_desk->monitor().setValue(0x05, 0);
    m_desk->monitor().refuse(0x0E, 2);
    m_page->carePanel()->startButton()->click();
    m_desk->takeCommands();
    for (const char *pressed : {"stripAction", "startCare"}) { // an answer counts for the monitor that was asked about
        currentMonitorIndex = 0;
        m_page->meanwhile = [] { currentMonitorIndex = 1; };
        if (qstrcmp(pressed, "stripAction") == 0)
            currentMonitorIndex = 1;
        m_page->findChild<QAbstractButton *>(pressed)->click();
        QVERIFY(m_page->notice().contains("no longer in use"));
        QCOMPARE((m_desk->takeCommands() + m_desk->takeCommands(1)).filter("W"), QStringList());
    }
    currentMonitorIndex = 0;
    m_page->meanwhile = [] {};
    m_desk->monitor().refuse(0x0E, 2);
    m_page->carePanel()->startButton()->click();
    QVERIFY(m_page->notice().contains("Start care"));
    currentMonitorIndex = 1; // which refused nothing
    m_page->updateInterfaceData();
    QCOMPARE(m_page->notice(), QString());
    currentMonitorIndex = 0;
}

/// A monitor without such a panel is left alone, and each that has one keeps its own count.
void TestOledCare::panelsApart()
{
    pass(1h, 1min);
    deviceState.store(Command::Capability, 0);
    pass(1h, 1min);
    QCOMPARE(m_page->keeper().history(), CareHistory());
    deviceState.store(Command::Capability, 4);
    pass(1min, 1min);
    QVERIFY(m_page->keeper().history().used >= 3600 - 60 && m_page->keeper().history().used < 2 * kHour);
    m_desk->clock.setNow(m_desk->clock.now().addDays(1)); // asleep
    pass(1min, 1min);
    QVERIFY(m_page->keeper().history().used > kHour && m_page->keeper().history().used < 3 * kHour);
}

QTEST_MAIN(TestOledCare)
#include "tst_oledcare.moc"
