#include <random>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkrecorder.h"
#include "ddc_protocol/linkrecords.h"
#include "ddc_protocol/sceneblock.h"
#include "support/deskfixture.h"
#include "support/fulldisk.h"
#include "virtualdesk/deskscript.h"

using namespace std::chrono_literals;

namespace {

/// What a monitor's own log tells about a link, counted in another way than the program does.
struct Observed
{
    std::uint64_t requests = 0, failures = 0, writes = 0, writesToday = 0, retries = 0;
    std::vector<int> durations; ///< of answers
    bool opened = false;        ///< the command under way has made an attempt

    void add(const virtualdesk::Request &request, int duration);
};

/// Ten minutes before midnight, so that a day ends on the way.
const QDateTime kBegin(QDate(2024, 3, 9), QTime(23, 50));

void Observed::add(const virtualdesk::Request &request, int duration)
{
    const bool again = request.code == 0xFF || (request.code == 0x99 && std::exchange(opened, true));
    ++requests;
    retries += again ? 1 : 0;
    if (!request.ok()) {
        ++failures;
        return;
    }
    durations.push_back(duration);
    if (request.kind == virtualdesk::RequestKind::Read || request.code == 0x99)
        return;
    ++writes;
    writesToday += request.time.addMSecs(-duration).date() == kBegin.date().addDays(1) ? 1 : 0;
}

void armSomeFault(virtualdesk::SimulatedMonitor &monitor, std::mt19937 &random)
{
    const int times = static_cast<int>(random() % 9) + 1;
    switch (random() % 8) {
    case 0:
        return monitor.goDeaf(times);
    case 1:
        return monitor.refuseWrites(times);
    case 2:
        return monitor.loseReplies(times);
    case 3:
        return monitor.dropChunks(times);
    case 4:
        return monitor.refuse(random() % 2 == 0 ? 0x99 : 0x10, times);
    case 5:
        return monitor.garbleReplies(times);
    case 6:
        return monitor.setDelay(platform::milliseconds(random() % 3 * 700));
    default:
        return monitor.recover();
    }
}

void sendSomething(std::mt19937 &random)
{
    constexpr Command kCommands[] = {Command::Brightness, Command::Contrast, Command::SceneMode, Command::AudioVolume};
    const Command command = kCommands[random() % 4];
    switch (random() % 5) {
    case 0:
    case 1:
        Korvu_SetCommandVal(writeRow(command), static_cast<std::uint16_t>(random() % 60 + 1), kRetryCount);
        return;
    case 2:
        readCommandOnce(readRow(command));
        return;
    case 3:
        Korvu_GetCommandValQuiet(readRow(command), kRetryCount);
        return;
    default:
        Korvu_ReadCommandTable(readRow(Command::SceneMode), static_cast<std::uint16_t>(random() % 44 * 2 + 2),
                               kSceneBlockSize);
    }
}

LinkRequest request(char kind, std::uint8_t code, bool ok, int second)
{
    LinkRequest made{.isWrite = kind == 'W', .code = code, .isBlock = kind == 'B', .at = kBegin.addSecs(second)};
    made.reply.answered = ok;
    return made;
}

/// A desk's script whose monitor answers as a recording's.
auto script(const QByteArray &recording, int monitor, QString &error)
{
    writeText("r.jsonl", recording);
    const QString text = R"({"monitors": [{"model": "Q27-OLED", "replay": "r.jsonl", "replay_monitor": %1}]})";
    return virtualdesk::parseDeskScript(text.arg(monitor).toUtf8(), error);
}

} // namespace

/// What is kept of the link to each monitor.
class TestLinkRecord : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void countsWhatTheMonitorSaw();
    void errorsInWords_data();
    void errorsInWords();
    void twinsStayTwo();
    void recordingReplays();
    void recordingsAreWhole();
    void recordingOfWindowsReplays();
    void departuresAreTold();

private:
    QByteArray record(unsigned seed, bool faults);
};

/// Twenty thousand commands to two monitors with every fault: the counters are those of the monitors' own logs.
void TestLinkRecord::countsWhatTheMonitorSaw()
{
    constexpr unsigned kSeed = 20260;
    std::mt19937 random(kSeed);
    std::array<Observed, 2> observed;
    findDevices();
    m_desk->clock.setNow(kBegin);
    for (std::size_t i = 0; i < observed.size(); ++i) {
        virtualdesk::SimulatedMonitor &monitor = m_desk->monitor(i);
        monitor.addListener([&, i](const virtualdesk::Request &request) {
            observed[i].add(request, m_desk->clock.takeWaits().last());
        });
    }
    for (int i = 0; i < 20000; ++i) {
        if (random() % 20 == 0)
            armSomeFault(m_desk->monitor(random() % 2), random);
        currentMonitorIndex = static_cast<std::uint8_t>(random() % 2);
        const auto latency = [&random] { return platform::milliseconds(random() % 100 + 1); };
        m_desk->monitor(currentMonitorIndex).setLatency(latency(), latency());
        for (Observed &seen : observed)
            seen.opened = false;
        sendSomething(random);
    }
    for (std::size_t i = 0; i < observed.size(); ++i) {
        Observed &seen = observed[i];
        const LinkRecord record = linkRecords.recordOf(monitorList[i].identity);
        std::sort(seen.durations.begin(), seen.durations.end());
        QVERIFY2(seen.failures > 500 && seen.retries > 500 && seen.writesToday > 500, "the seed is too kind");
        QCOMPARE(record.requests(), seen.requests);
        QCOMPARE(record.failures(), seen.failures);
        QCOMPARE(record.retries(), seen.retries);
        QCOMPARE(record.writes(), seen.writes);
        QCOMPARE(record.writesOn(kBegin.date().addDays(1)), seen.writesToday);
        QCOMPARE(record.medianLatency(), seen.durations[(seen.durations.size() - 1) / 2]);
        QCOMPARE(record.worstLatency(), seen.durations.back());
        QVERIFY(record.errors().size() == LinkRecord::kErrors);
        QVERIFY(record.failedRetries() > 0 && record.failedRetries() < record.retries());
    }
}

/// Requests in order, as kind, code and whether it went well, and the errors that are told, newest first: how many,
/// their fault, code and count, and whether the monitor has made up for them.
void TestLinkRecord::errorsInWords_data()
{
    QTest::addColumn<QString>("requests");
    QTest::addColumn<QString>("errors");
    QTest::newRow("a value told when asked again") << "R99+ R10- R99+ R10- R99+ R10+"
                                                   << "1:10x2+";
    QTest::newRow("silence, then answers") << "R99- R10- W99- W99- R99+ R12-"
                                           << "1:12x1 0:99x4+";
    QTest::newRow("refused for good, another one taken") << "W99+ W10- W99+ W10- W99+ W12+"
                                                         << "2:10x2";
    QTest::newRow("told is not taken") << "W99+ W10- R99+ R10+"
                                       << "2:10x1";
    QTest::newRow("a chunk that came late") << "B99+ B22+ B0a+ Bfe- Bff+ Bfe+"
                                            << "3:fex1+";
    QTest::newRow("a block that breaks twice") << "B99+ B22+ B0a- B99+ B22+ B0a-"
                                               << "3:0ax2";
    QTest::newRow("two in turn stay two") << "R99+ R10- R99+ R12- R99+ R10-"
                                          << "1:10x2 1:12x1";
}

void TestLinkRecord::errorsInWords()
{
    QFETCH(const QString, requests);
    QFETCH(const QString, errors);
    LinkRecord record;
    int second = 0;
    for (const QString &each : requests.split(QLatin1Char(' ')))
        record.add(request(each[0].toLatin1(), static_cast<std::uint8_t>(each.mid(1, 2).toInt(nullptr, 16)),
                           each.endsWith(QLatin1Char('+')), ++second));
    QStringList told;
    for (const LinkError &error : record.errors())
        told += QStringLiteral("%1:%2x%3%4")
                    .arg(static_cast<int>(error.fault))
                    .arg(error.code, 2, 16, QLatin1Char('0'))
                    .arg(error.count)
                    .arg(QLatin1String(error.recovered ? "+" : ""));
    QCOMPARE(told.join(QLatin1Char(' ')), errors);
}

/// Two monitors of one model, even with the same serial number, have a record each; unplugged between, too.
void TestLinkRecord::twinsStayTwo()
{
    m_desk->desk.displays().setRegistryEdid(1, virtualdesk::buildEdid(m_desk->monitor(0).model()));
    findDevices();
    const MonitorIdentity first = monitorList[0].identity;
    const MonitorIdentity second = monitorList[1].identity;
    QCOMPARE(first.name, second.name);
    QCOMPARE(first.serial, second.serial);
    currentMonitorIndex = 1;
    readCommandOnce(readRow(Command::Brightness));
    m_desk->desk.unplug(0);
    findDevices();
    currentMonitorIndex = 0;
    readCommandOnce(readRow(Command::Brightness));
    QCOMPARE(linkRecords.recordOf(first).requests(), 0u);
    QCOMPARE(linkRecords.recordOf(second).requests(), 4u);
    const EdidFacts facts = monitorList[0].facts;
    QCOMPARE(QStringLiteral("%1 %2-%3 %4x%5")
                 .arg(facts.serial)
                 .arg(facts.year)
                 .arg(facts.week)
                 .arg(facts.resolution.width())
                 .arg(facts.resolution.height()),
             QStringLiteral("0000001 2024-20 2560x1440"));
}

/// Five hundred commands to both monitors, with faults if they do not come from a recording.
QByteArray TestLinkRecord::record(unsigned seed, bool faults)
{
    std::mt19937 random(seed);
    std::mt19937 randomFault(seed);
    findDevices();
    linkRecorder.start();
    for (int i = 0; i < 500; ++i) {
        if (faults && i % 5 == 0) {
            armSomeFault(m_desk->monitor(randomFault() % 2), randomFault);
            m_desk->monitor(0).setDelay(0ms); // a replay takes no time
            m_desk->monitor(1).setDelay(0ms);
        }
        currentMonitorIndex = static_cast<std::uint8_t>(random() % 2);
        sendSomething(random);
    }
    linkRecorder.stop();
    return readText(linkRecorder.fileName());
}

/// A program that does the same gets the same answers: its own recording is the same, byte for byte.
void TestLinkRecord::recordingReplays()
{
    const QByteArray recorded = record(1, true);
    QVERIFY(recorded.count('\n') == linkRecorder.requests() && recorded.count("\"answered\":false") > 100);
    DeskSuite::cleanup();
    DeskSuite::init();
    QString error;
    const int oled = recorded.indexOf("Q27-OLED") < recorded.indexOf("Q32-MPCS") ? 0 : 1;
    for (int i = 0; i < 2; ++i) {
        const auto replay = virtualdesk::parseRecording(recorded, i == 0 ? oled : 1 - oled, error);
        QVERIFY2(replay, qPrintable(error));
        m_desk->monitor(static_cast<std::size_t>(i)).replay(*replay);
    }
    QCOMPARE(record(1, false), recorded);
    for (std::size_t i = 0; i < 2; ++i) {
        QCOMPARE(m_desk->monitor(i).replayed()->departures(), QStringList());
        QCOMPARE(m_desk->monitor(i).replayed()->left(), 0);
    }
}

/// On a full disk, and with another one in the same second.
void TestLinkRecord::recordingsAreWhole()
{
    findDevices();
    linkRecorder.start();
    const QString first = linkRecorder.fileName();
    {
        const FullDisk full(1000);
        for (int i = 0; i < 9; ++i)
            readCommandOnce(readRow(Command::Brightness));
    }
    QVERIFY(!linkRecorder.isRecording() && !linkRecorder.error().isEmpty());
    const QByteArray recorded = readText(first);
    QVERIFY(recorded.endsWith('\n') && recorded.count('\n') == linkRecorder.requests());
    linkRecorder.start();
    linkRecorder.stop();
    QVERIFY(readText(first) == recorded && readText(linkRecorder.fileName()).isEmpty());
}

/// What the Windows program recorded of a monitor: the desk answers as the monitor's own log tells, byte for byte, also
/// after an editor or a mail has changed the line ends. QUORVEL_RECORDING names another folder than the one kept here.
void TestLinkRecord::recordingOfWindowsReplays()
{
    const QString folder = qEnvironmentVariable("QUORVEL_RECORDING", QFINDTESTDATA("windows/recorded"));
    const QByteArray recording = readText(folder + "/recording.jsonl");
    const QByteArray log = readText(folder + "/bytes.txt");
    QVERIFY(log.contains("\nR ") && log.contains("\nW ") && log.contains(" 0 0 0\n"));
    for (const QByteArray &text : {recording, "\xEF\xBB\xBF" + QByteArray(recording).replace('\n', "\r\n")}) {
        QString error;
        const auto setup = script(text, 0, error);
        QVERIFY2(setup, qPrintable(error));
        virtualdesk::SimulatedMonitor &monitor = m_desk->monitor();
        monitor.replay(*setup->monitors[0].replay);
        QByteArray told;
        for (const QByteArray &line : log.chopped(1).split('\n')) {
            const QByteArrayList words = line.split(' ');
            const auto code = static_cast<std::uint8_t>(words[1].toInt(nullptr, 16));
            const auto reply = words[0] == "R" ? monitor.read(code) : monitor.write(code, words[2].toUInt());
            told += words.mid(0, 3).join(' ') + (reply.ok() ? " 1 " : " 0 ") + QByteArray::number(reply.current) + ' ' +
                    QByteArray::number(reply.maximum) + '\n';
        }
        QCOMPARE(told, log);
        QCOMPARE(monitor.replayed()->departures(), QStringList());
        QCOMPARE(monitor.replayed()->left(), 0);
    }
}

/// By a desk's script, as a user's report becomes a test.
void TestLinkRecord::departuresAreTold()
{
    const auto line = [](int code, int current, char kind = 'R') {
        LinkRequest made = request(kind, static_cast<std::uint8_t>(code), true, 0);
        made.value = static_cast<std::uint32_t>(current);
        made.reply.current = static_cast<std::uint32_t>(current);
        made.reply.maximum = 100;
        return recordedLine({"Q27-OLED", "1", "UID1"}, made, 0);
    };
    const QByteArray recording =
        line(0x99, 0) + line(0x10, 40) + line(0x99, 0) + line(0x12, 50) + line(0x99, 5, 'W') + line(0x10, 5, 'W');
    QString error;
    const auto setup = script(recording, 0, error);
    QVERIFY2(setup, qPrintable(error));
    m_desk->monitor().replay(*setup->monitors[0].replay);
    findDevices();
    std::uint32_t current = 0;
    std::uint32_t maximum = 0;
    QVERIFY(Korvu_GetCommandValMax(readRow(Command::Contrast), current, maximum));
    QVERIFY(current == 50 && maximum == 100); // it goes on where the recording asks the same
    QVERIFY(!Korvu_SetCommandVal(writeRow(Command::Brightness), 6, kRetryCount));
    QVERIFY(Korvu_SetCommandVal(writeRow(Command::Brightness), 5, kRetryCount));
    QCOMPARE(readCommandOnce(readRow(Command::Brightness)), std::nullopt);
    QCOMPARE(m_desk->monitor().replayed()->departures(),
             (QStringList{"line 2 of the recording asks R 10, but R 12 was asked",
                          "line 5 of the recording asks W 99=5, but W 99=6 was asked",
                          "line 5 of the recording asks W 99=5, but W 99=6 was asked",
                          "R 99 was asked behind the end of the recording",
                          "R 10 was asked behind the end of the recording"}));

    for (const QByteArray &damaged : {QByteArray("{\"op\": 3}\n"), line(0x10, 40).replace("current", "currmnt"),
                                      line(0x10, 40).replace(":40", ":-4")})
        QVERIFY(!script(recording + damaged, 0, error) && error.contains("line 7 is no recorded request"));
    QVERIFY(script(recording + line(0x10, 40).chopped(9), 0, error)); // cut off by whoever passed it on
    QVERIFY(!script(recording, 1, error) && error.contains("has 1 monitors"));
}

QTEST_GUILESS_MAIN(TestLinkRecord)
#include "tst_linkrecord.moc"
