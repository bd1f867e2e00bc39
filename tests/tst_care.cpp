#include <future>

#include <QPushButton>
#include <QtTest>

#include "controls/locksign.h"
#include "controls/messagestrip.h"
#include "controls/nowheelslider.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/valuechanges.h"
#include "ddc_protocol/writecounts.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/engine/panelpage.h"
#include "page/engine/undobar.h"
#include "support/fulldisk.h"
#include "support/windowfixture.h"

using namespace std::chrono_literals;

/// What the program spares its users and their monitors.
class TestCare : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void everyLockHasItsReason();
    void lockedEntriesSayWhy();
    void undoOfRiskyChanges_data();
    void undoOfRiskyChanges();
    void undoOfferEnds_data() { undoOfRiskyChanges_data(); }
    void undoOfferEnds();
    void writesAreCounted();
    void writeBudget_data();
    void writeBudget();
    void automaticWrites();

private:
    QStringList unexplained(SettingsPage *page) const;
    QStringList deadEnds(SettingsPage *page) const;
    void show(SettingsPage *page) const;
    void startAndSettle();
    bool makeChange();
    const UndoBar *undoBar() const;
};

/// Controls of a page that are disabled, themselves or around them, without a word.
QStringList TestCare::unexplained(SettingsPage *page) const
{
    QStringList found;
    for (const QWidget *control : page->widget()->findChildren<QWidget *>()) {
        const bool isUsed = qobject_cast<const QAbstractButton *>(control) || qobject_cast<const QSlider *>(control);
        if (isUsed && !control->isEnabled() && control->accessibleDescription().isEmpty())
            found.append(control->accessibleName());
    }
    return found;
}

/// Shows one of the two pages that have locks; of the picture page the motion function.
void TestCare::show(SettingsPage *page) const
{
    const bool isScene = page == m_window->scenePage();
    const auto family = isScene ? static_cast<int>(*familyOfSceneValue(deviceState.value(Command::SceneMode))) : 5;
    QTest::mouseClick(m_window->tabs()->tabs().at(static_cast<std::size_t>(family)), Qt::LeftButton);
    if (isScene)
        return;
    QTest::mouseClick(entry(family, "Picture Enhance"), Qt::LeftButton);
    static_cast<PanelPage *>(page)->showPanel(1);
}

/// Presses every lock in sight: each leads to something else that can be used.
QStringList TestCare::deadEnds(SettingsPage *page) const
{
    QStringList found;
    for (LockSign *sign : page->widget()->findChildren<LockSign *>()) {
        if (sign->isHidden())
            continue;
        show(page);
        const bool isShown = sign->isVisible();
        sign->setFocus();
        QTest::keyClick(sign, Qt::Key_Space);
        const QWidget *now = m_window->focusWidget();
        if (!isShown || !now || now == sign || !now->isEnabled() || !now->isVisible() || sign->reason().isEmpty() ||
            sign->reason() != sign->toolTip())
            found.append(sign->reason());
    }
    return found;
}

void TestCare::everyLockHasItsReason()
{
    start(10);
    const auto busy = lockTransport(); // what the monitor has is not to come in between
    std::set<QString> reasons;
    for (const SceneMode &mode : sceneModes()) {
        for (const auto &[temperature, enhance] : {std::pair(0, 0), {7, 3}, {9, 0}}) {
            deviceState.store(Command::SceneMode, mode.value + 1);
            deviceState.store(Command::ColorTemperature, temperature);
            deviceState.store(Command::ColorEnhance, enhance);
            m_window->refreshPages();
            for (const PageId id :
                 {PageId::Scene, PageId::PictureEnhance, PageId::Office, PageId::SystemSetting, PageId::IoSetting}) {
                SettingsPage *page = m_window->settingsPage(id);
                QCOMPARE(unexplained(page), QStringList());
                QCOMPARE(deadEnds(page).join('|'), QString());
                for (const LockSign *sign : page->widget()->findChildren<LockSign *>())
                    reasons.insert(sign->reason());
            }
        }
    }
    QCOMPARE(reasons.size(), std::size_t(7)); // each of the six rules was met, and free controls
    QVERIFY(m_window->scenePage()->slider("Hue_R")->isEnabled());
}

void TestCare::lockedEntriesSayWhy()
{
    start(10);
    m_window->tabs()->tabs().at(5)->setFocus();
    for (const auto &[code, capability] : {std::pair(kLocked, 0xFFFF), {kBusy, 0xFFFF}, {kByModel, 0}}) {
        deviceState.store(Command::Capability, capability);
        QTest::mouseClick(m_window->tabs()->tabs().at(5), Qt::LeftButton);
        m_window->setInterfaceMode(code);
        int locked = 0;
        for (int family = 0; family < kFamilies; ++family) {
            for (const LeftTabButton *button : m_window->leftBar(family)->buttons()) {
                const bool usable = button->isEnabled() && button->isSelectable();
                locked += !usable;
                QVERIFY(usable == button->toolTip().isEmpty() && button->accessibleDescription() == button->toolTip());
            }
        }
        QVERIFY(locked > 0);
        for (const TopTab *tab : m_window->tabs()->tabs())
            QVERIFY(tab->isEnabled() == tab->toolTip().isEmpty() && tab->accessibleDescription() == tab->toolTip());
        m_window->setInterfaceMode(kBusyEnded);
    }
}

void TestCare::undoOfRiskyChanges_data()
{
    columns<PageId, int, int, int, bool>("page", "command", "before", "value", "offered");
    QTest::newRow("output range") << PageId::IoSetting << 0x60 << 0 << 2 << true;
    QTest::newRow("OSD language") << PageId::SystemSetting << 0xCC << 2 << 13 << true;
    QTest::newRow("overdrive") << PageId::PictureEnhance << 0x49 << 1 << 4 << true;
    QTest::newRow("overdrive, not at its top") << PageId::PictureEnhance << 0x49 << 1 << 3 << false;
    QTest::newRow("menu lock") << PageId::SystemSetting << 0xC4 << 0 << 1 << true;
    QTest::newRow("menu unlocked") << PageId::SystemSetting << 0xC4 << 1 << 0 << false;
    QTest::newRow("power saving") << PageId::SystemSetting << 0xC6 << 0 << 2 << true;
    QTest::newRow("input") << PageId::IoSetting << 0x57 << 1 << 4 << false;
    QTest::newRow("nothing changed") << PageId::IoSetting << 0x60 << 2 << 2 << false;
}

/// Makes the change of the row; whether the way back is offered.
bool TestCare::makeChange()
{
    QFETCH(const PageId, page);
    QFETCH(const int, command);
    QFETCH(const int, before);
    QFETCH(const int, value);
    deviceState.store(Command(command), before);
    m_window->settingsPage(page)->optionGroup(Command(command))->buttonOf(value)->click();
    QCoreApplication::processEvents();
    m_desk->takeCommands();
    return undoBar()->offered().has_value();
}

const UndoBar *TestCare::undoBar() const
{
    QFETCH(const PageId, page);
    return m_window->settingsPage(page)->undoBar();
}

void TestCare::startAndSettle()
{
    start(10);
    m_desk->clock.advance(1min); // what is asked once, behind the start
    QTRY_VERIFY(m_window->findChild<CommandQueue *>()->isIdle());
}

void TestCare::undoOfRiskyChanges()
{
    QFETCH(const int, command);
    QFETCH(const int, before);
    QFETCH(const bool, offered);
    startAndSettle();
    const UndoBar *bar = undoBar();
    QCOMPARE(makeChange(), offered);
    if (!offered)
        return;
    std::promise<void> held, looked;
    auto isFree = std::async(std::launch::async, [&] {
        const auto lock = lockTransport(); // a slow read
        held.set_value();
        return looked.get_future().wait_for(5s) == std::future_status::ready;
    });
    held.get_future().wait();
    m_desk->clock.advance(14s);
    looked.set_value();
    QVERIFY(isFree.get()); // the window did not wait for it
    QTest::keyClick(bar->button(), Qt::Key_Space);
    QCOMPARE(m_desk->takeCommands(), QStringList{QStringLiteral("W %1=%2").arg(command, 0, 16).arg(before)});
    QVERIFY(bar->isHidden() && deviceState.confirmed(Command(command)) == before);
    m_desk->monitor().refuse(static_cast<std::uint8_t>(command), 2);
    QVERIFY(!makeChange());
    bar->parentWidget()->findChild<MessageStrip *>()->button()->click(); // "Try again"
    QVERIFY(bar->offered().has_value());
}

void TestCare::undoOfferEnds()
{
    QFETCH(const int, command);
    QFETCH(const int, before);
    QFETCH(const int, value);
    QFETCH(const bool, offered);
    if (!offered)
        return;
    startAndSettle();
    const UndoBar *bar = undoBar();
    QVERIFY(makeChange());
    m_desk->clock.advance(14s);
    QVERIFY(makeChange()); // has its own time
    m_desk->clock.advance(14s);
    QVERIFY(!bar->isHidden());
    m_desk->clock.advance(1s);
    QVERIFY(bar->isHidden() && m_desk->takeCommands().isEmpty()); // nothing goes back by itself
    QCOMPARE(int(m_desk->monitor().value(std::uint8_t(command))), value);

    m_desk->monitor().refuseWrites(2);
    QVERIFY(!makeChange()); // there is nothing to go back from
    m_desk->clock.advance(1min);
    QTRY_VERIFY(m_window->findChild<CommandQueue *>()->isIdle()); // what the refusal led to
    QVERIFY(makeChange());
    m_desk->monitor().setValue(std::uint8_t(command), std::uint16_t(before)); // by the monitor's own buttons
    deviceState.told(Command(command), before);
    QCoreApplication::processEvents();
    QVERIFY(!bar->offered());
    QVERIFY(makeChange());
    currentMonitorIndex = 1;
    bar->button()->click();
    QVERIFY(!bar->offered() && m_desk->takeCommands(1).isEmpty());
}

void TestCare::writesAreCounted()
{
    start(10);
    const QString monitor = monitorIdentity();
    const QString key = QString::fromLatin1(monitor.toUtf8().toPercentEncoding() + "/10");
    QVERIFY(
        storeSetting(key, "before:7 2024-01-01:2 2024-03-08:5 2024-03-07:9223372036854775807 nonsense", kWritesFile));
    const auto counted = [&](int code) {
        const WriteCount count = writeCounts.countOf(monitor, code);
        return std::pair(count.today, count.inAll);
    };
    for (int value = 1; value <= 3; ++value)
        sendValue(Command::Brightness, value);
    m_desk->monitor().refuse(0x10, 1);
    sendValue(Command::Brightness, 4); // taken by the second attempt
    m_desk->monitor().refuse(0x10, 2);
    sendValue(Command::Brightness, 5); // not taken
    sendValue(Command::Contrast, 5);
    QCOMPARE(counted(0x10), std::pair(qint64(4), qint64(18)));
    QVERIFY(!QFileInfo::exists(kWritesFile) || !readText(kWritesFile).contains("03-09"));
    QCoreApplication::processEvents();
    {
        const FullDisk full(0);
        m_desk->clock.advance(60s);
    }
    m_desk->clock.advance(60s); // once more
    QCOMPARE(settingsString(key.toLatin1().constData(), {}, false, kWritesFile), "before:9 2024-03-08:5 2024-03-09:4");
    sendValue(Command::Brightness, 6);
    m_desk->clock.advance(24h);
    m_window.reset(); // stores as well
    QCOMPARE(counted(0x10), std::pair(qint64(0), qint64(19)));
    QCOMPARE(counted(0x12), std::pair(qint64(0), qint64(1)));
    QCOMPARE(writeCounts.countOf(monitor).inAll, qint64(20));
}

void TestCare::writeBudget_data()
{
    const QDateTime noon(QDate(2024, 3, 9), QTime(12, 0));
    columns<WriteFacts, WriteStep, QDateTime>("facts", "step", "next");
    const auto row = [](const char *name, const WriteFacts &facts, WriteStep step, const QDateTime &next = {}) {
        QTest::newRow(name) << facts << step << next;
    };
    using enum WriteStep;
    const QDateTime midnight(QDate(2024, 3, 10), QTime(0, 0));
    row("asks first", {5, {}, false, {}, 0, 2000}, Ask);
    row("no answer", {5, {}, true, {}, 0, 2000}, Drop);
    row("is so already", {5, 5, true, noon, 2000, 2000}, Done);
    row("differs", {5, 6, true, noon.addMSecs(-1000), 1999, 2000}, Send);
    row("second used up", {5, 6, true, noon.addMSecs(-999), 0, 2000}, Wait, noon.addMSecs(1));
    row("clock set back", {5, 6, true, noon.addSecs(3600), 0, 2000}, Send);
    row("day used up", {5, 6, true, {}, 2000, 2000}, Wait, midnight);
    row("day used up, nothing asked", {5, {}, false, {}, 2000, 2000}, Wait, midnight);
    row("as many as it takes", {5, 6, true, {}, 9999, {}}, Send);
    row("none at all", {5, {}, false, {}, 0, 0}, Wait, midnight);
}

void TestCare::writeBudget()
{
    QFETCH(const WriteFacts, facts);
    QFETCH(const WriteStep, step);
    QFETCH(const QDateTime, next);
    const WriteDecision decision = planWrite(facts, QDateTime(QDate(2024, 3, 9), QTime(12, 0)));
    QCOMPARE(int(decision.step), int(step));
    QCOMPARE(decision.next.value_or(QDateTime()), next);
    QCOMPARE(decision.dayIsUsedUp, next.date() > QDate(2024, 3, 9));
}

/// The first answer is taken for one of before the writer heard of the value: so it asks once more.
static void doubtFirstAnswer(const CommandQueue &queue, Command doubted, QObject *until)
{
    const auto doubt = [doubted, isDoubted = false](Command command, bool) mutable {
        if (command == doubted && !std::exchange(isDoubted, true))
            deviceState.mayHaveChanged();
    };
    QObject::connect(&queue, &CommandQueue::answered, until, doubt, Qt::DirectConnection);
}

void TestCare::automaticWrites()
{
    start(10);
    QVERIFY(storeSetting("Care/AutomaticWrites", 2));
    auto &writer = *m_window->findChild<AutomaticWriter *>();
    QSignalSpy settled(&writer, &AutomaticWriter::settled);
    QSignalSpy usedUp(&writer, &AutomaticWriter::dayIsUsedUp);
    m_desk->monitor().setValue(0xF6, 30); // the monitor's own buttons; the program knows nothing of it
    m_desk->monitor().setValue(0xC6, 1);
    m_desk->monitor().refuse(0xEA, 1);
    m_desk->clock.advance(1min);
    m_desk->takeCommands();
    auto &queue = *m_window->findChild<CommandQueue *>();
    doubtFirstAnswer(queue, Command::OsdHPosition, &writer);
    writer.want(Command::AudioVolume, 31);
    writer.want(Command::PowerSaving, 1);
    writer.want(Command::AudioMode, 1);
    writer.want(Command::OsdHPosition, 7);
    writer.want(Command::OsdHPosition, 8);
    QTRY_COMPARE(settled.count(), 3);
    QStringList asked;
    QTRY_COMPARE((asked += m_desk->takeCommands()).count("R c1"), 2);
    QVERIFY(!asked.contains("W c6=1") && !asked.contains("W ea=1"));
    QCOMPARE(int(m_desk->monitor().value(0xF6)), 31);
    queue.ask(Command::AudioVolume); // somebody asks: it waits its second, and is not given up
    QTRY_VERIFY(queue.isIdle());
    QCoreApplication::processEvents();
    QCOMPARE(settled.count(), 3);
    QCOMPARE(m_desk->takeCommands().filter("W"), QStringList());
    m_desk->clock.advance(1s);
    QTRY_COMPARE(settled.count(), 4);
    QCOMPARE(int(m_desk->monitor().value(0xC1)), 8);
    writer.want(Command::OsdVPosition, 9);
    QCOMPARE(usedUp.count(), 1);
    const auto *overlay = m_window->findChild<HotkeyOverlay *>();
    QVERIFY(overlay->isShown() && overlay->text().contains("used up (2)"));
    sendValue(Command::OsdVPosition, 10); // the user's own are not limited
    m_desk->takeCommands();
    const QDateTime now = m_desk->clock.now();
    m_desk->clock.advance(platform::milliseconds(now.msecsTo(now.date().addDays(1).startOfDay())));
    QTRY_COMPARE(settled.count(), 5); // tomorrow
    QCOMPARE(m_desk->takeCommands(), (QStringList{"R c2", "W c2=9"}));
}

QTEST_MAIN(TestCare)
#include "tst_care.moc"
