#include <QtTest>

#include "support/manualclock.h"
#include "support/textfile.h"
#include "support/vendorpairs.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/virtualdesk.h"

using namespace std::chrono_literals;
using namespace virtualdesk;

/// What a script says of the desk, and what is said of a script that cannot be used.
class TestDeskScript : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

private Q_SLOTS:
    void readsScripts();
    void namesScriptFaults();
    void timingOfTheProcess();
};

/// A script that says something of everything.
static const QByteArray kScript = R"({
    "latency": {"read_ms": 4, "write_ms": 5}, "topology": "clone", "administrator": false,
    "user": {"idle_ms": 60000, "notification_state": 3},
    "displays": [{"bounds": [0, 0, 800, 600]}],
    "monitors": [
        {"model": "Q32-MPCS", "edid": "00 ff", "values": {"0x10": 12},
         "faults": [{"event": "refuse", "code": "0x12", "times": "always"}]},
        {"model": "Q27-OLED", "plugged": false, "edid": {"random": 64}, "latency": "none"}],
    "accessory": {"form": 1, "faults": [{"event": "fail_open", "times": 2}, {"event": "unplug", "at_write": 1}]},
    "events": [{"at_ms": 700, "event": "plug", "monitor": 1}, {"at_ms": 900, "event": "deaf", "times": 2}],
    "programs": [{"path": "C:\\a.exe", "window": {"rect": [1, 2, 30, 40], "frame": 7, "shape": "maximised"}}],
    "audio": {"rate": 44100, "channels": 8, "mix": "float", "plays": "tone", "volume": 5, "packet_frames": 33,
              "present": false, "faults": [{"call": "reset", "result": "0x88890004", "times": "always"}]}
})";

void TestDeskScript::readsScripts()
{
    QString error;
    const auto setup = parseDeskScript(kScript, error);
    QVERIFY2(setup, qPrintable(error));
    const EndpointSetup &sound = setup->sound;
    QVERIFY(sound.sampleRate == 44100 && sound.channels == 8 && sound.mix == MixKind::Float && !sound.present);
    QVERIFY(sound.sound.sound == Sound::Tone && sound.sound.volume == 5 && sound.packetFrames == 33);
    const AudioFault &fault = setup->audioFaults.at(0);
    QVERIFY(fault.call == AudioCall::Reset && fault.times == kForEver && fault.result == 0x88890004);
    VirtualDesk desk(m_clock, *setup);
    QCOMPARE(desk.process().administrator, false);
    QVERIFY(desk.user.idle == std::chrono::minutes(1) && desk.user.notificationState == 3);
    QCOMPARE(desk.displays().screens().at(0).geometry, QRect(0, 0, 800, 600));
    QCOMPARE(desk.windows().visibleRect(desk.applications().windowOf(0)), QRect(0, 0, 800, 552)); // above a taskbar
    QCOMPARE(desk.monitor(0).readLatency().count(), 4);
    QCOMPARE(desk.monitor(1).readLatency().count(), 0);
    QCOMPARE(readPair(desk.monitor(0), 0x10).current, 12u);
    for (int i = 0; i < 3; ++i)
        QVERIFY(!readPair(desk.monitor(0), 0x12).ok());
    QCOMPARE(desk.accessory().form(), 1);
    QVERIFY(!desk.accessory().open());
    QVERIFY(!desk.accessory().open());
    void *handle = desk.accessory().open();
    QVERIFY(handle);
    QCOMPARE(desk.accessory().write(handle, {}), -1);
    QVERIFY(!desk.accessory().isPlugged());

    QCOMPARE(desk.displays().paths().size(), 1u);
    desk.startEvents();
    desk.startEvents();
    m_clock.advance(899ms);
    QCOMPARE(desk.displays().paths().size(), 2u);
    QCOMPARE(m_clock.tasksWaiting(), 1u); // started twice, every event still comes once
    m_clock.advance(1ms);
    for (const bool answers : {false, false, true})
        QCOMPARE(desk.monitor(0).read(0x99).ok(), answers);
}

/// Scripts that cannot be used, and what is said of each.
static const std::pair<QByteArray, QString> kScriptFaults[] = {
    {"{\n\"monitors\": [,]\n}", "line 2"},
    {"[1]", "object"},
    {R"({"monitors": [{"model": "Q1"}]})", "\"Q1\""},
    {R"({"monitors": [{"model": "Q27-OLED", "display": 2}]})", "\"display\""},
    {R"({"displays": [{}]})", "fewer displays"},
    {R"({"events": [{"at_ms": 1, "event": "dance"}]})", "\"dance\""},
    {R"({"events": [{"event": "plug", "monitor": 9}]})", "\"monitor\""},
    {R"({"monitors": [{"model": "Q27-OLED", "edid": "00f"}]})", "\"edid\""},
    {R"({"latency": {"read_ms": -1}})", "\"read_ms\""},
    {R"({"accessory": {"form": 99}})", "\"form\""},
    {R"({"accessory": {"faults": [{"event": "sing"}]}})", "\"sing\""},
    {R"({"administrater": true})", "\"administrater\""},
    {R"({"displays": [{"nam": "x"}, {}]})", "\"nam\""},
    {R"({"displays": [{"bounds": [0, 0, "wide", 600]}, {}]})", "\"bounds\""},
    {R"({"monitors": [{"model": "Q27-OLED", "pluged": false}]})", "\"pluged\""},
    {R"({"monitors": [{"model": "Q27-OLED", "edid": {"random": 1, "sed": 2}}]})", "\"sed\""},
    {R"({"latency": {"reed_ms": 1}})", "\"reed_ms\""},
    {R"({"events": [{"event": "deaf", "time": 2}]})", "\"time\""},
    {R"({"accessory": {"shape": 1}})", "\"shape\""},
    {R"({"accessory": {"faults": [{"event": "unplug", "at": 1}]}})", "\"at\""},
    {R"({"events": [{"event": "refuse"}]})", "\"code\""},
    {R"({"administrator": 1})", "\"administrator\""},
    {R"({"programs": [{}]})", "\"path\""},
    {R"({"programs": [{"path": "x", "window": {"rect": [1, 2, 3]}}]})", "\"rect\""},
    {R"({"programs": [{"path": "x", "window": {"shape": "round"}}]})", "\"round\""},
    {R"({"user": {"notification_state": 8}})", "\"notification_state\""},
    {R"({"audio": []})", "\"audio\""},
    {R"({"user": 5})", "\"user\""},
    {R"({"displays": [5, {}]})", "\"displays\""},
    {R"({"monitors": [{"model": "Q27-OLED", "values": [16]}]})", "\"values\""},
    {R"({"screen": {"picture": 1}})", "\"picture\""},
    {R"({"audio": {"plays": "jazz"}})", "\"jazz\""},
    {R"({"audio": {"plays": "wave", "file": "none.wav"}})", "none.wav"},
    {R"({"audio": {"rat": 48000}})", "\"rat\""},
    {R"({"audio": {"faults": {}}})", "list"},
    {R"({"audio": {"faults": [{}]}})", "\"call\""},
    {R"({"audio": {"faults": [{"call": "stop", "result": 5}]}})", "\"result\""},
};

void TestDeskScript::namesScriptFaults()
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath("desk.json");
    for (const auto &[script, complaint] : kScriptFaults) {
        QString error;
        QVERIFY2(!parseDeskScript(script, error), script.constData());
        QVERIFY2(error.contains(complaint), qPrintable(error));
        QVERIFY(writeText(fileName, script));
        qputenv("QUORVEL_DESK_SCRIPT", fileName.toLocal8Bit());
        const QString pattern = "Desk script " + QRegularExpression::escape(fileName + " cannot be used: " + error);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
        const DeskSetup setup = setupFromEnvironment();
        qunsetenv("QUORVEL_DESK_SCRIPT");
        QCOMPARE(setup.monitors.size(), 2u);
        QCOMPARE(setup.readLatency, kRealisticRead);
    }
}

/// The timing of the program's desk: real unless the script tells one, and the variable wins over both.
void TestDeskScript::timingOfTheProcess()
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath("desk.json");
    qputenv("QUORVEL_DESK_SCRIPT", fileName.toLocal8Bit());
    const auto readLatency = [&fileName](const QByteArray &script) {
        return writeText(fileName, script) ? setupFromEnvironment().readLatency : -1ms;
    };
    QCOMPARE(readLatency("{}"), kRealisticRead);
    QCOMPARE(readLatency(R"({"latency": "none"})"), 0ms);
    QCOMPARE(readLatency(R"({"latency": {"read_ms": 4}})"), 4ms);
    qputenv("QUORVEL_DESK_LATENCY", "none");
    QCOMPARE(readLatency(R"({"latency": "realistic"})"), 0ms);
    qunsetenv("QUORVEL_DESK_LATENCY");
    qunsetenv("QUORVEL_DESK_SCRIPT");
}

QTEST_MAIN(TestDeskScript)
#include "tst_deskscript.moc"
