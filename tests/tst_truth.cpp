#include <QPushButton>
#include <QtTest>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/valuechanges.h"
#include "page/engine/panelpage.h"
#include "page/engine/settingspage.h"
#include "platform/nativemessage.h"
#include "reconcileplan.h"
#include "shortcut/shortcutlist.h"
#include "support/datarow.h"
#include "support/truthfixture.h"

using namespace std::chrono_literals;

/// The window shows what the monitor has, or says that it does not know, after everything that can happen.
class TestTruth : public TruthFixture
{
    Q_OBJECT
private Q_SLOTS:
    void whenToAsk();
    void refusedHalf();
    void keyDuringAHalfSwitch();
    void minusKeyIntoAnotherMode();
    void factoryHalfIsNotTheUsers();
    void heldSliderIsLeftAlone();
    void heldSliderIsTakenAway();
    void emptyPageAsksForTheMode();
    void unknownSliderAtItsEndSends();
    void marks();
    void statusFollowsEveryRequest();
    void motionOptionsOnBothPages();
    void noticed_data();
    void noticed();
    void trueAgainAfterAnAbsence();
    void twinIsAnotherMonitor();
};

/// The planner alone: at second 100, what is done, and when it looks again.
void TestTruth::whenToAsk()
{
    const QDateTime start(QDate(2026, 1, 1), QTime(0, 0));
    const auto at = [&start](double second) { return start.addMSecs(qint64(1000 * second)); };
    using enum ReconcileStep::Action;
    ReconcileFacts seen;
    seen.isSeen = seen.isWanted = true;
    const auto with = [&seen](auto change) {
        ReconcileFacts facts = seen;
        change(facts);
        return facts;
    };
    const auto silent = [&](int tries, double asked) {
        return with([&](ReconcileFacts &facts) {
            facts.answers = false;
            facts.vainTries = tries;
            facts.asked = at(asked);
        });
    };
    const std::pair<ReconcileFacts, ReconcileStep> kRows[] = {
        {seen, {Ask}},
        {with([](auto &facts) { facts.isSeen = false; }), {}},
        {with([](auto &facts) { facts.isSearching = true; }), {}},
        {with([](auto &facts) { facts.isAsking = true; }), {}},
        {with([](auto &facts) { facts.isWanted = false; }), {}},
        {with([&](auto &facts) { facts.stale = at(99.5); }), {Nothing, at(100.5)}},
        {with([&](auto &facts) { facts.stale = at(99); }), {Search}},
        {with([&](auto &facts) { facts.isSeen = false, facts.stale = at(99); }), {Search}}, // for hot keys, too
        {silent(1, 99.5), {Nothing, at(100.5)}},
        {silent(1, 99), {Ask}},
        {silent(3, 97), {Nothing, at(101)}},
        {silent(20, 41), {Nothing, at(101)}},
        {silent(20, 9000), {Ask}}, // the clock was set back
        {with([&](auto &facts) { facts.isWanted = false, facts.vainTries = 3, facts.asked = at(96); }), {Ask}},
        {with([&](auto &facts) { facts.isWanted = false, facts.vainTries = 4, facts.asked = at(0); }), {}},
    };
    for (std::size_t i = 0; i < std::size(kRows); ++i)
        QVERIFY2(planReconciliation(kRows[i].first, at(100)) == kRows[i].second, qPrintable(QString::number(i)));
}

void TestTruth::refusedHalf()
{
    start(9);
    m_desk->monitor().refuseWrites(virtualdesk::kForEver);
    QTest::mouseClick(half(true), Qt::LeftButton);
    settle();
    m_desk->clock.advance(1s);
    settle();
    QVERIFY(m_window->scenePage()->isDefaultView()); // the monitor said again what is on
    QCOMPARE(lies(), QStringList());
    m_desk->monitor().recover();
    QTest::mouseClick(half(true), Qt::LeftButton);
    settle();
    QCOMPARE(int(m_desk->monitor().value(0x22)), 10);
    QVERIFY(!m_window->scenePage()->isDefaultView());
    QCOMPARE(lies(), QStringList());
}

void TestTruth::keyDuringAHalfSwitch()
{
    start(1, 0, [] { saveShortcuts({true, {{6, true, QStringLiteral("Ctrl+N"), {}}}}); });
    m_desk->clock.advance(200ms);
    bool pressed = false;
    const int listener = m_desk->monitor().addListener([&](const virtualdesk::Request &request) {
        if (request.code == 0xFE && !std::exchange(pressed, true)) // the worker reads the block
            QMetaObject::invokeMethod(this, [this] { m_desk->desk.pressKey(platform::kModifierControl, 'N'); });
    });
    QTest::mouseClick(half(true), Qt::LeftButton);
    settle();
    m_desk->monitor().removeListener(listener);
    QVERIFY(pressed);
    QCOMPARE(int(m_desk->monitor().value(0x22)), 13);
    QVERIFY(entry(0, "Night Mode")->isChecked());
    QCOMPARE(lies(), QStringList());
}

void TestTruth::minusKeyIntoAnotherMode()
{
    start(10, 0, [] { saveShortcuts({true, {{6, true, {}, QStringLiteral("Ctrl+N")}}}); });
    m_desk->monitor().setBlock(14, QByteArray(1, char(66)));
    m_desk->clock.advance(200ms);
    m_desk->desk.pressKey(platform::kModifierControl, 'N');
    settle();
    QCOMPARE(slider("Brightness")->value(), 66);
    QCOMPARE(lies(), QStringList());
}

/// The picture page shows the half that is on; what is set there does not enter the other half.
void TestTruth::factoryHalfIsNotTheUsers()
{
    start(10);
    const int users = m_desk->monitor().block(10).at(4);
    QTest::mouseClick(half(false), Qt::LeftButton);
    m_desk->monitor().setValue(0x41, static_cast<std::uint16_t>((users + 1) % 6));
    openPage(5, "Picture Enhance");
    auto *picture = m_window->settingsPage(PageId::PictureEnhance);
    static_cast<PanelPage *>(picture)->showPanel("CR Enhance");
    settle();
    QCOMPARE(picture->slider("CR Enhance")->value(), (users + 1) % 6);
    QTest::mouseClick(m_window->tabs()->tabs()[0], Qt::LeftButton);
    QTest::mouseClick(half(true), Qt::LeftButton);
    settle();
    QCOMPARE(slider("CR Enhance")->value(), users);
    QCOMPARE(lies(), QStringList());
    m_desk->clock.advance(5s);
    m_desk->monitor().setValue(0x22, 9); // by its own buttons
    openPage(5, "Picture Enhance");
    settle();
    QCOMPARE(lies(), QStringList());
    QCOMPARE(deviceState.value(Command::SceneMode), 9);
    picture->slider("CR Enhance")->slider()->moveAtOnce(5);
    settle();
    QVERIFY(sendValue(Command::SceneMode, 9)); // by a key: the monitor takes back what was changed
    settle();
    QVERIFY(picture->slider("CR Enhance")->value() != 5);
    QCOMPARE(lies(), QStringList());
}

void TestTruth::heldSliderIsLeftAlone()
{
    start(10);
    NoWheelSlider *brightness = slider("Brightness")->slider();
    brightness->setSliderDown(true);
    brightness->setSliderPosition(33);
    m_desk->monitor().setValue(0x12, 44); // the monitor's own buttons, and the window comes to the front
    m_window->systemNoticed(SystemNotice::Unlocked);
    settle();
    QCOMPARE(slider("Contrast")->value(), 44);
    QCOMPARE(brightness->sliderPosition(), 33);
    brightness->setSliderDown(false);
    settle();
    QCOMPARE(int(m_desk->monitor().value(0x10)), 33);
    brightness->setSliderDown(true);
    m_desk->monitor().setValue(0x10, 21);
    m_window->systemNoticed(SystemNotice::Unlocked);
    settle();
    brightness->setSliderDown(false);
    QCOMPARE(brightness->value(), 21);
}

/// Another half, another mode or a lock takes a slider out of the user's hand: what he had not let go of is not sent.
void TestTruth::heldSliderIsTakenAway()
{
    for (const int mode : {9, 12, 22}) {
        start(10);
        NoWheelSlider *colour = slider("Color Enchance")->slider();
        colour->setSliderDown(true);
        colour->setSliderPosition(7);
        m_desk->takeCommands();
        m_desk->monitor().setValue(0x22, static_cast<std::uint16_t>(mode));
        m_window->systemNoticed(SystemNotice::Unlocked);
        settle();
        QVERIFY(!colour->isSliderDown());
        QCOMPARE(m_desk->takeCommands().filter("W"), QStringList());
        QCOMPARE(lies(), QStringList());
        cleanup();
    }
}

/// The page of a family none of whose modes is on names the one that is.
void TestTruth::emptyPageAsksForTheMode()
{
    start(10);
    m_desk->monitor().setValue(0x22, 13);
    m_desk->clock.advance(3s);
    QTest::mouseClick(m_window->tabs()->tabs()[1], Qt::LeftButton);
    settle();
    QCOMPARE(deviceState.value(Command::SceneMode), 13);
}

void TestTruth::unknownSliderAtItsEndSends()
{
    start(10);
    m_desk->monitor().refuse(0xC1, 1); // the first question
    openPage(8, "System Settings");
    SettingsPage *system = m_window->settingsPage(PageId::SystemSetting);
    static_cast<PanelPage *>(system)->showPanel("OSD Setting");
    settle();
    SliderWidget *position = system->slider("H-Position");
    QVERIFY(position->isUnknown());
    QTest::mouseClick(position->slider(), Qt::LeftButton, {}, QPoint(1, position->slider()->height() / 2));
    settle();
    QCOMPARE(int(m_desk->monitor().value(0xC1)), 0);
    QVERIFY(!position->isUnknown());
}

void TestTruth::marks()
{
    start(10);
    {
        const auto busy = lockTransport();
        slider("Brightness")->slider()->setSliderPosition(20);
        QCoreApplication::processEvents();
        QCOMPARE(slider("Brightness")->mark(), Mark::None);
        m_desk->clock.advance(300ms);
        QCOMPARE(slider("Brightness")->mark(), Mark::Waiting);
    }
    settle();
    QCOMPARE(slider("Brightness")->mark(), Mark::None);
    m_desk->monitor().refuse(0x10, 2);
    slider("Brightness")->slider()->setSliderPosition(30);
    settle();
    QCOMPARE(slider("Brightness")->mark(), Mark::Refused);
    QTRY_COMPARE(slider("Brightness")->value(), 20); // as the monitor said when it was found again
    QVERIFY(!slider("Brightness")->toolTip().isEmpty());
    QCOMPARE(slider("Contrast")->mark(), Mark::None);
    m_desk->monitor().setValue(0xCC, 99); // a language that this program does not know
    openPage(8, "System Settings");
    SettingsPage *system = m_window->settingsPage(PageId::SystemSetting);
    static_cast<PanelPage *>(system)->showPanel("OSD Language");
    settle();
    QCOMPARE(system->optionGroup(Command::OsdLanguage)->mark(), Mark::Unlisted);
    SettingsPage *enhance = m_window->settingsPage(PageId::PictureEnhance); // a switch, and options that have the value
    static_cast<PanelPage *>(enhance)->showPanel("DyDs");
    openPage(5, "Picture Enhance");
    settle();
    QCOMPARE(enhance->optionGroup(Command::MotionTech)->mark(), Mark::None);
}

void TestTruth::statusFollowsEveryRequest()
{
    start(10);
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    static_cast<PanelPage *>(m_window->settingsPage(PageId::PictureEnhance))
        ->showPanel("CR Enhance"); // each mode's own
    m_desk->monitor().goDeaf();
    for (const auto &[family, page] : {std::pair(8, "I/O Settings"), {8, "System Settings"}, {5, "Picture Enhance"}}) {
        openPage(family, page); // its questions go unanswered
        settle();
        QCOMPARE(status(), QStringLiteral("1. Q27-OLED no answer"));
    }
    m_desk->clock.advance(1s); // the first pause: what the pages asked were no tries
    settle();
    QVERIFY(m_desk->takeCommands().endsWith("R 22!"));
    settle();
    QCOMPARE(m_desk->takeRequests(), QStringList()); // before the second pause is over
    m_desk->monitor().recover();
    m_desk->clock.advance(2s);
    settle();
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QCOMPARE(lies(), QStringList());
}

void TestTruth::motionOptionsOnBothPages()
{
    start(10);
    SettingsPage *picture = m_window->settingsPage(PageId::PictureEnhance);
    for (const SettingsPage *page : {picture, static_cast<SettingsPage *>(m_window->scenePage())}) {
        deviceState.store(Command::SceneMode, 26);
        m_window->refreshPages();
        for (OptionGroupRow *row : page->optionGroups()) {
            if (row->group().command == Command::MotionTech && row->group().look == GroupLook::Buttons)
                QVERIFY(!row->buttonOf(4)->isEnabled() && row->buttonOf(7)->isEnabled());
        }
    }
}

void TestTruth::noticed_data()
{
    columns<int, int>("notice", "searches");
    QTest::newRow("woke") << int(SystemNotice::Woke) << 1;
    QTest::newRow("displays changed") << int(SystemNotice::DisplaysChanged) << 1;
    QTest::newRow("display on") << int(SystemNotice::DisplayOn) << 0;
    QTest::newRow("unlocked") << int(SystemNotice::Unlocked) << 0;
}

/// However many messages come: one search where handles may be stale, then the values in sight, and no write.
void TestTruth::noticed()
{
    QFETCH(int, notice);
    start(10);
    settle();
    m_desk->monitor().setValue(0x10, 77);
    m_desk->takeLog();
    m_desk->takeCommands();
    for (int i = 0; i < 3; ++i)
        m_window->systemNoticed(SystemNotice(notice));
    m_desk->clock.advance(2s);
    settle();
    QCOMPARE(slider("Brightness")->value(), 77);
    QTEST(int(m_desk->takeLog().filter("Reconnet device").size()), "searches");
    QVERIFY(m_desk->takeCommands().filter("W").isEmpty());
    QCOMPARE(lies(), QStringList());
}

/// Its own buttons, half a minute without a cable, and a sleep from which it wakes slowly: three seconds after its
/// first answer everything in sight is true, and the status is the whole time.
void TestTruth::trueAgainAfterAnAbsence()
{
    start(10);
    m_desk->desk.unplug(1); // there is only this one
    m_desk->desk.unplug(0);
    m_desk->clock.advance(30s);
    settle();
    QVERIFY(!status().endsWith("connected"));
    m_desk->monitor().setValue(0x12, 41);
    m_desk->desk.plug(0);
    m_desk->clock.advance(3s);
    settle();
    QCOMPARE(lies(), QStringList());
    QCOMPARE(slider("Contrast")->value(), 41);

    m_desk->desk.sleep();
    m_desk->monitor().setValue(0x10, 13);
    m_desk->clock.advance(std::chrono::hours(8));
    m_desk->desk.wake();
    for (int tenths = 0; tenths < 50; ++tenths) {
        m_desk->clock.advance(100ms);
        settle();
        QCOMPARE(status().endsWith("connected"), monitorAnswers());
    }
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QCOMPARE(lies(), QStringList());
    QCOMPARE(slider("Brightness")->value(), 13);
}

/// In the place of the one that was unplugged, under the same label: nothing that the other one told holds.
void TestTruth::twinIsAnotherMonitor()
{
    start(10, 0, [this] {
        m_desk->desk.displays().setRegistryEdid(1, virtualdesk::buildEdid(m_desk->monitor(0).model()));
        m_desk->session().searchDevices();
    });
    deviceState.told(Command::AudioVolume, 31);
    m_window->hide(); // so that nothing is asked for
    m_desk->desk.unplug(0);
    m_window->systemNoticed(SystemNotice::DisplaysChanged);
    m_desk->clock.advance(2s);
    settle();
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QVERIFY(!deviceState.isKnown(Command::AudioVolume));
}

QTEST_MAIN(TestTruth)
#include "tst_truth.moc"
