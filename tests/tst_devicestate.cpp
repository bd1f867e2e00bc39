#include <QtTest>

#include "ddc_protocol/devicestate.h"
#include "support/datarow.h"
#include "support/deskfixture.h"

/// What is known about a value after wishes and answers, in the order of the wire.
class TestDeviceState : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_desk.reset(); }
    void steps_data();
    void steps();
    void halvesAndModes_data();
    void halvesAndModes();
    void blockOfAnotherMode();
    void confirmationHasATime();

private:
    void perform(const QString &step);
    static QString known(Command command);

    std::unique_ptr<DeskFixture> m_desk;
};

void TestDeviceState::init()
{
    m_desk = std::make_unique<DeskFixture>();
}

/// "wish 5", "mode taken 9"; "block 10" reads the block of mode 10, all sevens.
void TestDeviceState::perform(const QString &step)
{
    const QStringList words = step.split(' ');
    const Command command = words.first() == "mode" ? Command::SceneMode : Command::Brightness;
    const QString what = words.at(words.size() - 2);
    const int value = words.last().toInt();
    std::array<std::uint8_t, kSceneBlockSize> block;
    block.fill(7);
    if (what == "wish")
        deviceState.wish(command, value);
    else if (what == "preview")
        deviceState.preview(command, value);
    else if (what == "drop")
        deviceState.dropPreview(command);
    else if (what == "taken")
        deviceState.taken(command, value);
    else if (what == "refused")
        deviceState.refused(command, value);
    else if (what == "told")
        deviceState.told(command, value);
    else if (what == "doubt")
        deviceState.doubt(command);
    else if (what == "store")
        deviceState.store(command, value);
    else if (what == "later")
        m_desk->clock.advance(std::chrono::seconds(value));
    else if (what == "block")
        deviceState.storeSceneBlock(value, block);
    else
        QFAIL(qPrintable(step));
}

QString TestDeviceState::known(Command command)
{
    constexpr const char *kStates[] = {"unknown", "known", "pending", "refused"};
    const std::optional<int> confirmed = deviceState.confirmed(command);
    return QStringLiteral("%1 %2, has %3")
        .arg(QLatin1String(kStates[static_cast<int>(deviceState.state(command))]))
        .arg(deviceState.value(command))
        .arg(confirmed ? QString::number(*confirmed) : QStringLiteral("?"));
}

void TestDeviceState::steps_data()
{
    columns<QString>("after");
    row("told 5", "known 5, has 5");
    row("wish 5", "pending 5, has ?");
    row("told 3,wish 5", "pending 5, has 3");
    row("wish 5,taken 5", "known 5, has 5");
    row("told 3,wish 5,refused 5", "refused 5, has 3"); // the control stays where it was put
    row("wish 5,refused 5,told 3", "refused 3, has 3"); // until a later answer, and says why it moves
    row("wish 5,refused 5,later 10,told 3", "known 3, has 3");
    row("wish 5,told 3", "pending 5, has 3");         // asked before the wish went out
    row("wish 5,wish 6,taken 5", "pending 6, has 5"); // an older wish is no answer to the newer one
    row("wish 5,wish 6,refused 5", "pending 6, has ?");
    row("wish 5,wish 6,taken 5,taken 6", "known 6, has 6");
    row("wish 5,taken 5,refused 5", "known 5, has 5"); // a late word of an older try
    row("told 3,doubt 0", "unknown 3, has 3");
    row("told 3,wish 5,doubt 0", "pending 5, has 3");
    row("told 3,preview 9", "known 9, has 3");
    row("preview 9", "unknown 9, has ?");
    row("told 3,preview 9,drop 0", "known 3, has 3");
    row("told 3,wish 5,preview 9,drop 0", "pending 5, has 3");
    row("told 3,wish 5,preview 9,taken 5", "known 9, has 5"); // it is still moved
    row("told 3,wish 5,preview 9,refused 5,drop 0", "refused 5, has 3");
    row("told 3,doubt 0,preview 9,drop 0", "unknown 3, has 3");
    row("told 3,store -1", "unknown -1, has ?");
    row("wish 5,store 4", "known 4, has 4");
}

void TestDeviceState::steps()
{
    QFETCH(QString, after);
    for (const QString &step : QString::fromLatin1(QTest::currentDataTag()).split(','))
        perform(step);
    QCOMPARE(known(Command::Brightness), after);
}

void TestDeviceState::halvesAndModes_data()
{
    columns<QString, bool>("brightness", "blockValid");
    row("mode told 10,block 10", "known 7, has 7", true);
    row("mode told 10,block 10,mode taken 9", "unknown 0, has ?", true); // the factory half's own is not known yet
    row("mode told 10,block 10,mode taken 9,told 50", "known 50, has 50", true);
    row("mode told 9,told 50,mode wish 9,mode taken 9", "unknown 50, has 50", false); // which makes it the factory's
    row("mode told 10,block 10,preview 9,mode told 9,mode told 10", "known 7, has 7", true);
    row("mode told 10,block 10,mode taken 9,told 50,mode taken 10", "known 7, has 7", true);
    row("mode told 9,wish 40,taken 40,mode taken 10", "unknown 0, has ?", false);
    row("mode told 10,block 10,mode taken 12", "unknown 0, has ?", false);
    row("mode told 9,wish 40,mode taken 13", "unknown 0, has ?", false); // nor does a wish follow into the next mode
    row("mode told 9,mode wish 10,told 50,mode taken 10", "unknown 0, has ?", false); // it was still in the other half
    row("mode told 9,mode wish 10,block 10,wish 40,taken 40,mode taken 10", "known 7, has 7", true); // a key's
    row("mode told 9,mode wish 10,mode refused 10,wish 40,taken 40,mode told 9", "known 40, has 40", false);
}

void TestDeviceState::halvesAndModes()
{
    QFETCH(QString, brightness);
    for (const QString &step : QString::fromLatin1(QTest::currentDataTag()).split(','))
        perform(step);
    QCOMPARE(known(Command::Brightness), brightness);
    QTEST(deviceState.sceneBlockValid(), "blockValid");
}

void TestDeviceState::blockOfAnotherMode()
{
    perform("mode told 10");
    perform("mode wish 14");
    perform("block 10"); // asked for before
    QVERIFY(!deviceState.sceneBlockValid());
    QCOMPARE(deviceState.lastSceneModeSent.load(), 14);
    perform("mode refused 14");
    QCOMPARE(deviceState.lastSceneModeSent.load(), 10); // so that the next press sends it again
}

void TestDeviceState::confirmationHasATime()
{
    QVERIFY(!deviceState.confirmedAt(Command::Brightness));
    perform("told 5");
    const QDateTime told = m_desk->clock.now();
    m_desk->clock.advance(std::chrono::seconds(5));
    perform("wish 6");
    QCOMPARE(deviceState.confirmedAt(Command::Brightness), std::optional(told));
    m_desk->clock.setNow(told.addSecs(1));
    QVERIFY(deviceState.isFresh(Command::Brightness));
    m_desk->clock.setNow(told.addDays(-1)); // nobody knows how long ago it was
    QVERIFY(!deviceState.isFresh(Command::Brightness));
    m_desk->clock.setNow(told.addSecs(5));
    QCOMPARE(deviceState.pendingSince(Command::Brightness), std::optional(told.addSecs(5)));
}

QTEST_MAIN(TestDeviceState)
#include "tst_devicestate.moc"
