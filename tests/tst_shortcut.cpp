#include <QtTest>

#include "ddc_protocol/devicestate.h"
#include "platform/desk.h"
#include "platform/nativekeys.h"
#include "shortcut/qxtglobalshortcut.h"
#include "shortcut/shortcutlist.h"
#include "shortcut/shortcutrunner.h"
#include "support/deskfixture.h"
#include "support/fulldisk.h"

using namespace platform;

namespace {

constexpr int kPlus = 0;
constexpr int kMinus = 1;
constexpr int kAudioMute = 23;
const char *const kSaverArgument = "--save-again-and-again";

/// Hears what is left of a message behind the filters installed after it.
struct LastFilter : QAbstractNativeEventFilter
{
    LastFilter() { QCoreApplication::instance()->installNativeEventFilter(this); }
    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        messages += static_cast<NativeMessage *>(message)->message == kMessageHotKey;
        return false;
    }
    int messages = 0;
};

bool deliverHotKey(std::uint32_t modifiers, std::uint32_t key)
{
    NativeMessage message;
    message.message = kMessageHotKey;
    message.lParam = static_cast<std::int64_t>(key << 16 | modifiers);
    return virtualdesk::deliverNativeMessage(message);
}

// clang-format off
/// A key pressed while the monitor has these values, as "code=value", and the commands that follow.
struct Step { int function; int direction; const char *values; const char *commands; bool rests = true; };
constexpr Step kSteps[] = {
    {0, kPlus, "", "W 22=1"}, {10, kMinus, "", "W 22=22"},
    {11, kPlus, "", "W 22=29"}, {11, kMinus, "", "W 22=30"},
    {12, kPlus, "10=40", "R 10,W 10=50"}, {12, kPlus, "10=95", "R 10,W 10=100"}, {12, kMinus, "10=5", "R 10,W 10=0"},
    {13, kPlus, "12=100", "R 12,W 12=100"}, {13, kMinus, "12=100", "R 12,W 12=90"},
    {14, kPlus, "14=10", "R 14,W 14=0"}, {14, kMinus, "14=0", "R 14,W 14=10"},
    {15, kPlus, "d8=4", "R d8,W d8=4"}, {15, kMinus, "d8=0", "R d8,W d8=0"},
    {16, kPlus, "26=4", "R 26,W 26=5"}, {16, kPlus, "26=5", "R 26,W 26=7"},
    {16, kPlus, "26=6", "R 26,W 26=7"}, {16, kPlus, "26=7", "R 26,W 26=0"},
    {16, kMinus, "26=7", "R 26,W 26=5"}, {16, kMinus, "26=6", "R 26,W 26=5"}, {16, kMinus, "26=0", "R 26,W 26=7"},
    {17, kPlus, "41=5", "R 41,W 41=6"}, // beyond the page's slider, up to 10
    {17, kPlus, "41=10", "R 41,W 41=0"}, {17, kMinus, "41=0", "R 41,W 41=10"},
    {18, kPlus, "42=91", "R 42,W 42=100"}, {18, kMinus, "42=10", "R 42,W 42=0"},
    {19, kPlus, "ec=3", "R ec,W ec=0"}, {19, kMinus, "ec=0", "R ec,W ec=3"},
    {19, kPlus, "ec=4", "R ec,W ec=0"}, // the custom size, which keys do not choose
    {20, kPlus, "f1=3", "R f1,W f1=0"}, {20, kMinus, "f1=0", "R f1,W f1=3"},
    {21, kPlus, "f2=2", "R f2,W f2=0"}, {21, kMinus, "f2=0", "R f2,W f2=2"},
    {22, kPlus, "f8=5", "R f8,W f8=0"}, {22, kMinus, "f8=0", "R f8,W f8=5"},
    {23, kPlus, "", "W f7=1"}, {23, kMinus, "", "W f7=0"},
    {24, kPlus, "30=0 31=2", "R 30,R 31,W 31=3"}, {24, kMinus, "30=1 31=1", "R 30,R 31,W 31=0"},
    {24, kPlus, "30=0 31=3", "R 30,R 31,W 31=0", false}, {24, kMinus, "30=0 31=0", "R 30,R 31,W 31=3", false},
    {24, kPlus, "30=1 31=3", "R 30,R 31,W 30=0", false}, {24, kMinus, "30=1 31=0", "R 30,R 31,W 30=0", false},
    {25, kPlus, "3d=0 34=1", "R 3d,R 34,W 34=1", false}, {25, kPlus, "3d=1 34=1", "R 3d,R 34,W 34=2"},
    {25, kPlus, "3d=0 34=0", "R 3d,R 34,W 34=1"}, {25, kPlus, "3d=0 34=5", "R 3d,R 34,W 34=6"},
    {25, kPlus, "3d=1 34=6", "R 3d,R 34,W 3d=0", false}, {25, kPlus, "3d=0 34=6", "R 3d,R 34,W 34=1", false},
    {25, kMinus, "32=6", "R 32,W 32=7"}, {25, kMinus, "32=7", "R 32,W 32=0", false},
    {26, kPlus, "3e=0 33=1", "R 3e,R 33,W 33=1", false}, {26, kPlus, "3e=1 33=3", "R 3e,R 33,W 33=4"},
    {26, kPlus, "3e=1 33=4", "R 3e,R 33,W 3e=0", false}, {26, kPlus, "3e=0 33=4", "R 3e,R 33,W 33=1", false},
    {26, kMinus, "35=2", "R 35,W 35=3"}, {26, kMinus, "35=3", "R 35,W 35=0", false},
    {27, kPlus, "3f=0 36=1", "R 3f,R 36,W 36=2"}, // unlike the two before it
    {27, kPlus, "3f=0 36=4", "R 3f,R 36,W 36=1", false}, {27, kPlus, "3f=1 36=4", "R 3f,R 36,W 3f=0", false},
    {27, kMinus, "3f=1 37=3", "R 3f,R 37,W 37=0", false}, {27, kMinus, "3f=0 37=3", "R 3f,R 37,W 37=4"},
    {28, kPlus, "", "W 63=1"}, {28, kMinus, "", "W 63=0"},
    {29, kPlus, "45=4", "R 45,W 45=0"}, {29, kMinus, "45=0", "R 45,W 45=4"},
    {12, kMinus, "10=120", "R 10,W 10=110"}, {15, kMinus, "d8=12", "R d8,W d8=11"}, // beyond the range
    {14, kMinus, "14=12", "R 14,W 14=11"}, {14, kPlus, "14=12", "R 14,W 14=0"}, {12, kPlus, "10=120", "R 10,W 10=100"},
    // No answer is -1, and the step goes on from there.
    {12, kPlus, "10=?", "W 10=9"}, {12, kMinus, "10=?", "W 10=0"},
    {14, kPlus, "14=?", "W 14=0"}, {14, kMinus, "14=?", "W 14=10"}, {16, kMinus, "26=?", "W 26=7"},
    {27, kPlus, "3f=? 36=4", "R 36,W 3f=0", false}, // a switch that does not answer counts as on
    {24, kMinus, "30=1 31=?", "R 30,W 31=65534"}, // the low 16 bits of -2
};
// clang-format on

/// Two lists of different lengths, so that a half-written one is neither.
ShortcutList listOf(int length)
{
    ShortcutList list;
    for (int function = 0; function < length; ++function)
        list.entries.push_back({function, true, QStringLiteral("Ctrl+%1").arg(function % 10), QStringLiteral("Alt+Q")});
    return list;
}

/// Saves for ever; what the test kills.
int saveAgainAndAgain()
{
    ManualClock clock;
    virtualdesk::VirtualDesk desk(clock);
    platform::VirtualPlatform platform(desk, clock);
    platform::installDesk(&platform);
    for (int i = 0; i < 1000000 && saveShortcuts(listOf(i % 2 == 0 ? 24 : 3)); ++i) {
        if (i == 0)
            puts("saving");
        fflush(stdout);
    }
    return 1;
}

} // namespace

class TestShortcut : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void steps_data();
    void steps();
    void roundsOfAnAid();
    void restsAfterAKey();
    void sceneKeyKeepsTheSnapshotTrue();
    void nativeKeys();
    void keyActivatesItsShortcut();
    void keyOfAnother();
    void newSequenceReplacesTheOld();
    void destructorGivesTheKeyBack();
    void filterLivesAsLongAsAnyShortcut();
    void fullDisk();
    void killedWhileSaving();
};

void TestShortcut::init()
{
    DeskSuite::init();
    findDevices();
    m_desk->takeLog();
}

void TestShortcut::cleanup()
{
    QCOMPARE(m_desk->monitor().protocolFaults().brokenPairs, 0);
    DeskSuite::cleanup();
}

void TestShortcut::steps_data()
{
    QTest::addColumn<Step>("step");
    for (const Step &each : kSteps)
        QTest::addRow("%d%c %s", each.function, each.direction == kPlus ? '+' : '-', each.values) << each;
}

void TestShortcut::steps()
{
    QFETCH(Step, step);
    const QString commands = QString::fromLatin1(step.commands);
    virtualdesk::SimulatedMonitor &monitor = m_desk->monitor();
    for (const QString &value : QString::fromLatin1(step.values).split(' ', Qt::SkipEmptyParts)) {
        const int code = value.first(2).toInt(nullptr, 16);
        if (value.endsWith('?'))
            monitor.loseReplies(virtualdesk::kForEver, code);
        else
            monitor.setValue(static_cast<std::uint8_t>(code), value.mid(3).toUShort());
    }
    ShortcutRunner runner;
    m_desk->clock.advance(milliseconds(200));
    runner.shortcutKeyCommand(step.function, step.direction);
    QStringList sent = m_desk->takeCommands();
    sent.removeIf([](const QString &command) { return command.startsWith('R') && command.endsWith('!'); });
    QCOMPARE(sent.join(','), commands);
    const QString write = commands.mid(commands.indexOf('W') + 2);
    QCOMPARE(deviceState.value(Command(write.first(2).toInt(nullptr, 16))), write.mid(3).toInt());

    runner.shortcutKeyCommand(kAudioMute, kPlus);
    QCOMPARE(m_desk->takeCommands().size(), step.rests ? 0 : 1);
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(1)); // the rest of one key, whichever it was
}

/// What a key is for is seen on the screen: the press behind the one that ends a round shows the aid again.
void TestShortcut::roundsOfAnAid()
{
    for (const auto &[function, code, shown] : {std::tuple(24, 0x30, "111011110"),
                                                {25, 0x3D, "11111101111110"},
                                                {26, 0x3E, "1111011110"},
                                                {27, 0x3F, "111011110"}}) {
        ShortcutRunner runner;
        QString seen;
        while (seen.size() < qsizetype(qstrlen(shown))) {
            m_desk->clock.advance(milliseconds(200));
            runner.shortcutKeyCommand(function, kPlus);
            const int isOn = m_desk->monitor().value(static_cast<std::uint8_t>(code));
            QCOMPARE(deviceState.confirmed(Command(code)), std::optional(isOn)); // pages show it at once
            seen += QString::number(isOn);
        }
        QCOMPARE(seen, QString(shown));
    }
}

void TestShortcut::restsAfterAKey()
{
    ShortcutRunner runner;
    m_desk->clock.advance(milliseconds(199));
    runner.shortcutKeyCommand(kAudioMute, kPlus); // too early, behind the start
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_desk->clock.advance(milliseconds(1));
    runner.shortcutKeyCommand(kAudioMute, kPlus);
    m_desk->clock.advance(milliseconds(199));
    runner.shortcutKeyCommand(kAudioMute, kMinus);
    QCOMPARE(m_desk->takeCommands(), QStringList("W f7=1"));
    m_desk->clock.advance(milliseconds(1)); // a dropped key does not begin the rest anew
    runner.shortcutKeyCommand(kAudioMute, kMinus);
    QCOMPARE(m_desk->takeCommands(), QStringList("W f7=0"));
    for (const auto &[function, direction] : {std::pair(1000, kPlus), std::pair(12, 2)}) { // without a rule
        m_desk->clock.advance(milliseconds(200));
        m_desk->takeRequests();
        runner.shortcutKeyCommand(function, direction);
        QCOMPARE(m_desk->takeLog(), function == 1000 ? QStringList("1000 暂未支持") : QStringList());
        runner.shortcutKeyCommand(kAudioMute, kPlus); // the keys rest all the same
        QCOMPARE(m_desk->takeRequests(), QStringList());
    }
}

void TestShortcut::sceneKeyKeepsTheSnapshotTrue()
{
    ShortcutRunner runner;
    deviceState.store(Command::SceneMode, 3);
    deviceState.storeSceneBlock(4, std::array<std::uint8_t, kSceneBlockSize>{});
    m_desk->clock.advance(milliseconds(200));
    runner.shortcutKeyCommand(1, kMinus); // the other half of the same mode
    QCOMPARE(deviceState.lastSceneModeSent.load(), 4);
    QVERIFY(deviceState.sceneBlockValid());
    m_desk->clock.advance(milliseconds(200));
    runner.shortcutKeyCommand(2, kMinus);
    QVERIFY(!deviceState.sceneBlockValid()); // what was read belongs to the mode before
}

/// Ends of ranges, gaps, and orders that differ on the two sides.
void TestShortcut::nativeKeys()
{
    constexpr std::pair<int, std::uint32_t> kKeys[] = {
        {Qt::Key_Backtab, 9},     {Qt::Key_Print, 42},     {Qt::Key_Down, 40},       {Qt::Key_End, 35},
        {Qt::Key_PageDown, 34},   {Qt::Key_F24, 135},      {Qt::Key_F25, 0},         {Qt::Key_Minus, 109},
        {Qt::Key_Period, 0},      {Qt::Key_Slash, 111},    {Qt::Key_BracketLeft, 0}, {Qt::Key_At, 0},
        {Qt::Key_MediaNext, 176}, {Qt::Key_VolumeUp, 175}, {Qt::Key_VolumeMute, 173}};
    for (const auto &[key, native] : kKeys)
        QCOMPARE(nativeKey(static_cast<std::uint32_t>(key)), native);
    QCOMPARE(nativeKey(static_cast<std::uint32_t>((Qt::KeypadModifier | Qt::Key_5).toCombined())), 0u);
}

void TestShortcut::keyActivatesItsShortcut()
{
    for (const auto &[sequence, modifiers, key] :
         {std::tuple("Ctrl+A", kModifierControl, 65u),
          {"Alt+9", kModifierAlt, 57u},
          {"Ctrl+Alt+Shift+Meta+F12", kModifierControl | kModifierAlt | kModifierShift | kModifierWin, 123u},
          {"Pause", 0u, 19u},
          {"Ctrl+K, Ctrl+D", kModifierControl, 75u}}) { // only the first of several
        LastFilter others;
        QxtGlobalShortcut shortcut;
        QSignalSpy activated(&shortcut, &QxtGlobalShortcut::activated);
        QVERIFY(shortcut.setShortcut(QKeySequence(sequence)));
        QCOMPARE(shortcut.shortcut(), QKeySequence(QKeySequence(sequence)[0]));
        QVERIFY(m_desk->desk.pressKey(modifiers, key));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(others.messages, 1); // the message carries on
        QVERIFY(!deliverHotKey(modifiers, key + 1));
        QCOMPARE(activated.count(), 1);
        shortcut.setDisabled(true);
        QVERIFY(m_desk->desk.pressKey(modifiers, key)); // the key stays taken
        QCOMPARE(activated.count(), 1);
        shortcut.setEnabled(true);
        m_desk->desk.pressKey(modifiers, key);
        QCOMPARE(activated.count(), 2);
    }
}

void TestShortcut::keyOfAnother()
{
    m_desk->desk.hotKeys().take(kModifierControl, 'A'); // another program's
    QxtGlobalShortcut first(QKeySequence("Ctrl+B"));
    auto second = std::make_unique<QxtGlobalShortcut>();
    QSignalSpy activated(second.get(), &QxtGlobalShortcut::activated);
    QVERIFY(!second->setShortcut(QKeySequence("Ctrl+A")));
    QCOMPARE(second->shortcut(), QKeySequence("Ctrl+A"));
    deliverHotKey(kModifierControl, 'A');
    QVERIFY(!second->setShortcut(QKeySequence("Ctrl+B")));
    QCOMPARE(m_desk->takeLog(), QStringList("QxtGlobalShortcut failed to unregister: Ctrl+A"));
    QSignalSpy firstActivated(&first, &QxtGlobalShortcut::activated);
    QVERIFY(m_desk->desk.pressKey(kModifierControl, 'B')); // still the first one's
    second.reset();
    QCOMPARE(m_desk->takeLog(), QStringList("QxtGlobalShortcut failed to unregister: Ctrl+B"));
    QVERIFY(m_desk->desk.pressKey(kModifierControl, 'B'));
    QCOMPARE(firstActivated.count(), 2);
    QCOMPARE(activated.count(), 0);
}

void TestShortcut::newSequenceReplacesTheOld()
{
    QxtGlobalShortcut shortcut(QKeySequence("Ctrl+A"));
    QSignalSpy activated(&shortcut, &QxtGlobalShortcut::activated);
    QVERIFY(shortcut.setShortcut(QKeySequence("Ctrl+A"))); // its own key is free again
    QVERIFY(shortcut.setShortcut(QKeySequence("Alt+B")));
    QVERIFY(!m_desk->desk.pressKey(kModifierControl, 'A'));
    QVERIFY(m_desk->desk.pressKey(kModifierAlt, 'B'));
    QCOMPARE(activated.count(), 1);
    QVERIFY(!shortcut.setShortcut({})); // nothing is registered
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    QVERIFY(shortcut.shortcut().isEmpty());
    QCOMPARE(m_desk->takeLog(), QStringList());
}

void TestShortcut::destructorGivesTheKeyBack()
{
    auto shortcut = std::make_unique<QxtGlobalShortcut>(QKeySequence("Ctrl+A"));
    shortcut.reset();
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    QCOMPARE(m_desk->takeLog(), QStringList());
    shortcut = std::make_unique<QxtGlobalShortcut>(QKeySequence("Ctrl+A"));
    QVERIFY(m_desk->desk.hotKeys().remove(int(kModifierControl ^ 'A'))); // so that giving it back fails
    shortcut.reset();
    QCOMPARE(m_desk->takeLog(), QStringList("QxtGlobalShortcut failed to unregister: Ctrl+A"));
    const QxtGlobalShortcut other;
    deliverHotKey(kModifierControl, 'A'); // must not reach the object that is gone
    auto *own = new QxtGlobalShortcut(QKeySequence("Ctrl+A"));
    connect(own, &QxtGlobalShortcut::activated, this, [own] { delete own; }); // its slot may delete it
    m_desk->desk.pressKey(kModifierControl, 'A');
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
}

void TestShortcut::filterLivesAsLongAsAnyShortcut()
{
    for (int round = 0; round < 2; ++round) { // the last one takes the filter away, the next one brings it back
        auto first = std::make_unique<QxtGlobalShortcut>();
        QxtGlobalShortcut second(QKeySequence("Ctrl+A"));
        QSignalSpy activated(&second, &QxtGlobalShortcut::activated);
        m_desk->desk.pressKey(kModifierControl, 'A');
        QCOMPARE(activated.count(), 1);
        first.reset();
        m_desk->desk.pressKey(kModifierControl, 'A');
        QCOMPARE(activated.count(), 2);
    }
}

void TestShortcut::fullDisk()
{
    QVERIFY(saveShortcuts(listOf(3)));
    {
        const FullDisk full(200); // its lock fits, and a good part of the list
        QVERIFY(!saveShortcuts(listOf(24)));
    }
    QVERIFY(loadShortcuts() == listOf(3));
}

void TestShortcut::killedWhileSaving()
{
    for (int round = 0; round < 12; ++round) {
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {QLatin1String(kSaverArgument)});
        QVERIFY(saver.waitForReadyRead(60000));
        saver.waitForFinished(round); // let it save on for some milliseconds
        saver.kill();
        QVERIFY(saver.waitForFinished());
        const ShortcutList list = loadShortcuts();
        QVERIFY(list == listOf(24) || list == listOf(3));
    }
}

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], kSaverArgument) == 0)
        return saveAgainAndAgain();
    QGuiApplication application(argc, argv);
    TestShortcut test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_shortcut.moc"
