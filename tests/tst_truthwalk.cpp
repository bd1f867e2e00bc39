#include <functional>
#include <random>

#include <QPushButton>
#include <QtTest>

#include "ddc_protocol/devicestate.h"
#include "following/followlist.h"
#include "page/engine/settingspage.h"
#include "platform/nativemessage.h"
#include "shortcut/shortcutlist.h"
#include "support/truthfixture.h"

using namespace std::chrono_literals;

namespace {

unsigned number(const char *variable, unsigned otherwise)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariable(variable).toUInt() : otherwise;
}

} // namespace

/// A random walk of use and misuse, after each step of which the window is compared with the monitor. QUORVEL_SEED
/// replays one, QUORVEL_STEPS makes it longer, QUORVEL_TRACE tells every step with its requests.
class TestTruthWalk : public TruthFixture
{
    Q_OBJECT
private Q_SLOTS:
    void randomWalk();

private:
    void openAnyPage(std::mt19937 &random);
    void pressAnyOption(std::mt19937 &random);
    void moveAnySlider(std::mt19937 &random);
    void step(std::mt19937 &random);
    void recoverAll();
    void osdChange(std::mt19937 &random);

    bool m_plugged = true;
    QString m_step; ///< what the walk did last, for whoever has to find out
};

void TestTruthWalk::osdChange(std::mt19937 &random)
{
    constexpr std::uint8_t kCodes[] = {0x10, 0x12, 0x41, 0xC1, 0xF6};
    const auto pick = random() % (std::size(kCodes) + 1);
    if (pick == std::size(kCodes))
        inUse().setValue(0x22, static_cast<std::uint16_t>(1 + random() % 20));
    else
        inUse().setValue(kCodes[pick], static_cast<std::uint16_t>(random() % 6));
    m_desk->desk.registrations().tellSystem(platform::kMessageSessionChange, platform::kSessionUnlock);
}

void TestTruthWalk::openAnyPage(std::mt19937 &random)
{
    constexpr std::pair<int, const char *> kPages[] = {{0, "Standard Mode"},   {0, "Night Mode"},
                                                       {5, "Picture Enhance"}, {8, "System Settings"},
                                                       {8, "I/O Settings"},    {4, "Ruler"}};
    const auto &[family, label] = kPages[random() % std::size(kPages)];
    m_step = QLatin1String(label);
    openPage(family, label);
}

void TestTruthWalk::pressAnyOption(std::mt19937 &random)
{
    const auto rows = m_window->findChildren<OptionGroupRow *>();
    const OptionGroupRow *row = rows[static_cast<int>(random() % static_cast<unsigned>(rows.size()))];
    QPushButton *button = row->buttons()[random() % row->buttons().size()];
    m_step = button->objectName();
    if (button->isVisible() && row->group().command)
        QTest::mouseClick(button, Qt::LeftButton);
}

void TestTruthWalk::moveAnySlider(std::mt19937 &random)
{
    const auto sliders = m_window->findChildren<SliderWidget *>();
    const SliderWidget *slider = sliders[static_cast<int>(random() % static_cast<unsigned>(sliders.size()))];
    m_step = slider->name();
    if (!slider->isVisible() || !slider->isEnabled())
        return;
    slider->slider()->setSliderDown(true);
    slider->slider()->setSliderPosition(static_cast<int>(random() % 6));
    slider->slider()->setSliderDown(false);
}

void TestTruthWalk::step(std::mt19937 &random)
{
    virtualdesk::VirtualDesk &desk = m_desk->desk;
    const auto below = [&random](unsigned end) { return static_cast<int>(random() % end); };
    const std::pair<const char *, std::function<void()>> kSteps[] = {
        {"page", [&] { openAnyPage(random); }},
        {"option", [&] { pressAnyOption(random); }},
        {"option", [&] { pressAnyOption(random); }},
        {"slider", [&] { moveAnySlider(random); }},
        {"slider", [&] { moveAnySlider(random); }},
        {"key", [&] { m_desk->clock.advance(200ms), desk.pressKey(platform::kModifierControl, "BNG"[random() % 3]); }},
        {"program", [&] { desk.applications().bringToFront(below(3)); }},
        {"half", [&] { QTest::mouseClick(half(random() % 2 != 0), Qt::LeftButton); }},
        {"buttons", [&] { osdChange(random); }},
        {"cable", [&] { std::exchange(m_plugged, !m_plugged) ? desk.unplug(0) : desk.plug(0); }},
        {"refuses", [&] { inUse().refuseWrites(below(5)); }},
        {"loses", [&] { inUse().loseReplies(below(4)); }},
        {"deaf", [&] { inUse().goDeaf(below(30)); }},
        {"sleep", [&] { random() % 4 == 0 ? desk.sleep() : desk.wake(); }},
        {"notice", [&] { m_window->systemNoticed(SystemNotice(random() % 4)); }},
        {"time", [&] { m_desk->clock.advance(std::chrono::milliseconds(random() % 3000)); }},
    };
    const auto &[name, act] = kSteps[random() % std::size(kSteps)];
    m_step.clear();
    act();
    m_step.prepend(QLatin1String(name) + QLatin1Char(' '));
}

void TestTruthWalk::randomWalk()
{
    const unsigned seed = number("QUORVEL_SEED", 1);
    const unsigned steps = number("QUORVEL_STEPS", 2000);
    std::mt19937 random(seed);
    start(10, 0, [] {
        saveFollowList({{QStringLiteral("D:/Games/Night Race/NightRace.exe"), 6}});
        saveShortcuts({true,
                       {{6, true, {}, QStringLiteral("Ctrl+N")},
                        {12, true, QStringLiteral("Ctrl+B"), {}},
                        {16, true, QStringLiteral("Ctrl+G"), {}}}});
    });
    for (unsigned i = 0; i < steps; ++i) {
        step(random);
        settle();
        const bool isRest = i % 10 == 9; // everything is well again, and the computer wakes
        if (isRest)
            recoverAll();
        if (status().endsWith("connected") && !lies().isEmpty()) {
            pass(3s); // so long it may take
        }
        const QByteArray where =
            QStringLiteral("QUORVEL_SEED=%1, step %2 (%3): ").arg(seed).arg(i).arg(m_step).toUtf8();
        if (qEnvironmentVariableIsSet("QUORVEL_TRACE"))
            QTextStream(stderr)
                << where << (m_desk->takeRequests() + QStringList("|") + m_desk->takeRequests(1)).join(QLatin1Char(32))
                << status() << " mode " << deviceState.value(Command::SceneMode) << ' '
                << int(deviceState.state(Command::SceneMode)) << ' ' << m_desk->monitor().value(0x22) << Qt::endl;
        QVERIFY2(lies().isEmpty() || !status().endsWith("connected"), (where + lies().join("; ").toUtf8()).constData());
        QVERIFY2(!isRest || status().endsWith("connected"), (where + status().toUtf8()).constData());
    }
}

void TestTruthWalk::recoverAll()
{
    if (!std::exchange(m_plugged, true))
        m_desk->desk.plug(0);
    for (const std::size_t each : {0, 1})
        m_desk->monitor(each).recover();
    m_desk->desk.wake();
    pass(5s); // of which the monitors take two to wake
}

QTEST_MAIN(TestTruthWalk)
#include "tst_truthwalk.moc"
