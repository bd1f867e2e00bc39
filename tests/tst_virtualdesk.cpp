#include <memory>
#include <thread>

#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

#include "platform/virtual/virtualplatform.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/virtualdesk.h"

using namespace virtualdesk;

namespace {

/// Returns from every wait at once and keeps what was asked for.
class InstantClock final : public platform::Clock
{
public:
    void sleep(platform::milliseconds duration) override { slept += duration; }
    QDateTime now() override { return QDateTime(QDate(2024, 3, 9), QTime(12, 0), Qt::UTC); }
    void callLater(platform::milliseconds delay, QObject *, std::function<void()> task) override
    {
        later.emplace_back(delay, std::move(task));
    }

    platform::milliseconds slept{0};
    std::vector<std::pair<platform::milliseconds, std::function<void()>>> later;
};

/// Takes native messages as a hidden window of the program does.
class Receiver : public QWidget
{
public:
    struct Message
    {
        std::uint64_t event;
        std::uint32_t deviceType;
        platform::Guid interfaceClass;
    };
    std::vector<Message> messages;

protected:
    bool nativeEvent(const QByteArray &eventType, void *native, qintptr *) override
    {
        const auto *message = static_cast<const platform::NativeMessage *>(native);
        if (eventType != platform::kNativeEventType || message->message != platform::kMessageDeviceChange)
            return false;
        const auto *body = reinterpret_cast<const platform::DeviceInterfaceBroadcast *>(message->lParam);
        messages.push_back({message->wParam, body->head.deviceType, body->interfaceClass});
        return false;
    }
};

bool writePair(SimulatedMonitor &monitor, std::uint8_t code, std::uint32_t value)
{
    return monitor.write(0x99, value).ok() && monitor.write(code, value).ok();
}

Reply readPair(SimulatedMonitor &monitor, std::uint8_t code)
{
    monitor.read(0x99);
    return monitor.read(code);
}

void append(QByteArray &bytes, const Reply &reply)
{
    for (const std::uint32_t word : {reply.maximum, reply.current}) {
        bytes.append(static_cast<char>(word >> 8));
        bytes.append(static_cast<char>(word & 0xFF));
    }
}

/// Reads a block as a careful program would: a failed continuation is repeated with 0xFF.
QByteArray readBlock(SimulatedMonitor &monitor, std::uint8_t mode)
{
    QByteArray bytes;
    monitor.read(0x99);
    monitor.read(0x22);
    append(bytes, monitor.read(mode));
    bool repeat = false;
    for (int requests = 0; bytes.size() < 40 && requests < 40; ++requests) {
        const Reply reply = monitor.read(repeat ? 0xFF : 0xFE);
        repeat = !reply.ok();
        if (reply.ok())
            append(bytes, reply);
    }
    monitor.read(0xFE);
    return bytes;
}

QByteArray countingBlock()
{
    QByteArray block(40, '\0');
    for (int i = 0; i < block.size(); ++i)
        block[i] = static_cast<char>(i * 5 + 1);
    return block;
}

} // namespace

class TestVirtualDesk : public QObject
{
    Q_OBJECT

private:
    InstantClock m_clock;

private Q_SLOTS:
    void refusesWhatWasNotAnnounced_data();
    void refusesWhatWasNotAnnounced();
    void countsMixedUpRequests();
    void limitsValues();
    void streamsTheBlock_data();
    void streamsTheBlock();
    void keepsABlockPerMode();
    void faultsStrikeAndEnd();
    void spendsItsLatency();
    void enumeratesWhatIsPlugged();
    void tracksHandles();
    void tellsTheRegisteredWindow();
    void buildsValidEdid();
    void readsScripts();
    void namesScriptFaults_data();
    void namesScriptFaults();
    void holdsNamesOnce();
};

using Steps = QList<QPair<int, int>>; // code, and the value written or -1 for a read

void TestVirtualDesk::refusesWhatWasNotAnnounced_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<bool>("accepted"); // the last step
    QTest::addColumn<int>("faults");
    QTest::newRow("write pair") << Steps{{0x99, 70}, {0x10, 70}} << true << 0;
    QTest::newRow("read pair") << Steps{{0x99, -1}, {0x10, -1}} << true << 0;
    QTest::newRow("write alone") << Steps{{0x10, 70}} << false << 1;
    QTest::newRow("announcement serves once") << Steps{{0x99, 70}, {0x10, 70}, {0x10, 70}} << false << 1;
    QTest::newRow("other value") << Steps{{0x99, 70}, {0x10, 71}} << false << 1;
    QTest::newRow("read announced, written") << Steps{{0x99, -1}, {0x10, 0}} << false << 1;
    QTest::newRow("code outside the table") << Steps{{0x99, -1}, {0x11, -1}} << false << 0;
    QTest::newRow("pair broken by another") << Steps{{0x99, 5}, {0x99, 70}, {0x10, 70}} << true << 1;
    QTest::newRow("stray continuation") << Steps{{0xFE, -1}} << false << 1;
    QTest::newRow("odd selector") << Steps{{0x99, -1}, {0x22, -1}, {0x03, -1}} << false << 1;
    QTest::newRow("selector that is a command code too") << Steps{{0x99, -1}, {0x22, -1}, {0x10, -1}} << true << 0;
    QTest::newRow("selector cannot be written") << Steps{{0x99, -1}, {0x22, -1}, {0x10, 16}} << false << 1;
}

void TestVirtualDesk::refusesWhatWasNotAnnounced()
{
    QFETCH(Steps, steps);
    QFETCH(bool, accepted);
    QFETCH(int, faults);
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    Reply last;
    for (const auto &[code, value] : steps) {
        const auto byte = static_cast<std::uint8_t>(code);
        last = value < 0 ? monitor.read(byte) : monitor.write(byte, static_cast<std::uint32_t>(value));
    }
    QCOMPARE(last.ok(), accepted);
    QCOMPARE(monitor.protocolFaults().total(), faults);
    QCOMPARE(monitor.history().size(), static_cast<std::size_t>(steps.size()));
    QCOMPARE(monitor.history().back().ok(), accepted);
}

void TestVirtualDesk::countsMixedUpRequests()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.read(0x99);
    std::thread([&monitor] { monitor.read(0x10); }).join();
    QCOMPARE(monitor.protocolFaults().interleaved, 1);
    // A whole pair from another thread is nothing to complain of.
    std::thread([&monitor] { readPair(monitor, 0x10); }).join();
    QCOMPARE(monitor.protocolFaults().total(), 1);
}

void TestVirtualDesk::limitsValues()
{
    SimulatedMonitor monitor(*findModel("Q32-MPCS"), m_clock);
    QVERIFY(writePair(monitor, 0x10, 250)); // the wire tells nothing about the value
    QCOMPARE(readPair(monitor, 0x10).current, 100u);
    QVERIFY(writePair(monitor, 0x14, 11));
    QVERIFY(readPair(monitor, 0x14).current <= 10u);
    QVERIFY(writePair(monitor, 0xED, 1));
    QCOMPARE(readPair(monitor, 0xED).current, 0x60u);
    QVERIFY(writePair(monitor, 0x22, 24)); // a scene that this model lacks
    QCOMPARE(readPair(monitor, 0x22).current, 2u);
    QCOMPARE(monitor.protocolFaults().badValues, 4);
    const Reply office = readPair(monitor, 0xEF);
    QVERIFY(office.maximum > office.current); // a panel is wider than high
}

void TestVirtualDesk::streamsTheBlock_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("dropped");
    QTest::addColumn<int>("lostContinuations");
    QTest::newRow("smooth") << 10 << 0 << 0;
    QTest::newRow("mode value equals brightness code") << 16 << 0 << 0;
    QTest::newRow("mode value equals scene code") << 34 << 0 << 0;
    QTest::newRow("a chunk dropped") << 10 << 1 << 0;
    QTest::newRow("a chunk dropped three times") << 10 << 3 << 0;
    QTest::newRow("a reply lost") << 10 << 0 << 1;
}

void TestVirtualDesk::streamsTheBlock()
{
    QFETCH(int, mode);
    QFETCH(int, dropped);
    QFETCH(int, lostContinuations);
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.setBlock(mode, countingBlock());
    monitor.dropChunks(dropped);
    monitor.loseReplies(lostContinuations, 0xFE);
    QCOMPARE(readBlock(monitor, static_cast<std::uint8_t>(mode)), countingBlock());
    QCOMPARE(monitor.protocolFaults().total(), 0);
    QCOMPARE(monitor.protocolFaults().openStreams, 0);
    QVERIFY(!monitor.read(0xFE).ok()); // closed
    QVERIFY(readPair(monitor, 0x10).ok());
}

void TestVirtualDesk::keepsABlockPerMode()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    QVERIFY(writePair(monitor, 0x22, 2));
    QVERIFY(writePair(monitor, 0x10, 31));
    QVERIFY(writePair(monitor, 0x9B, 77)); // red hue, byte 16
    QVERIFY(writePair(monitor, 0x22, 10));
    QVERIFY(writePair(monitor, 0x10, 32));
    QCOMPARE(readBlock(monitor, 2).at(0), char(31));
    QCOMPARE(readBlock(monitor, 2).at(16), char(77));
    QCOMPARE(readBlock(monitor, 10).at(0), char(32));

    // A factory mode shows its own picture and forgets what is changed in it.
    const auto factory = monitor.block(9).at(0);
    QVERIFY(writePair(monitor, 0x22, 9));
    QCOMPARE(readPair(monitor, 0x10).current, static_cast<std::uint32_t>(factory));
    QVERIFY(writePair(monitor, 0x10, 3));
    QCOMPARE(readPair(monitor, 0x10).current, 3u);
    QVERIFY(writePair(monitor, 0x22, 10));
    QCOMPARE(readPair(monitor, 0x10).current, 32u);
    QVERIFY(writePair(monitor, 0x22, 9));
    QCOMPARE(readPair(monitor, 0x10).current, static_cast<std::uint32_t>(factory));

    QVERIFY(writePair(monitor, 0xC7, 0));
    QCOMPARE(readPair(monitor, 0x22).current, 1u);
    QVERIFY(monitor.block(10).at(0) != char(32));
}

void TestVirtualDesk::faultsStrikeAndEnd()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.refuse(0x10, 2);
    QVERIFY(!writePair(monitor, 0x10, 20));
    QVERIFY(!readPair(monitor, 0x10).ok());
    QVERIFY(writePair(monitor, 0x10, 20));
    QCOMPARE(monitor.value(0x10), std::uint16_t(20));

    monitor.loseReplies(); // strikes the command's reply, not that of the announcement
    QVERIFY(monitor.read(0x99).ok());
    QCOMPARE(monitor.read(0x10).error, kErrorReceiving);
    QCOMPARE(readPair(monitor, 0x10).current, 20u);

    monitor.garbleReplies();
    const Reply garbled = readPair(monitor, 0x10);
    QVERIFY(garbled.ok());
    QVERIFY(garbled.current != 20u);

    monitor.refuseWrites(kForEver);
    QVERIFY(!monitor.write(0x99, 1).ok());
    QVERIFY(readPair(monitor, 0x10).ok());
    monitor.recover();

    monitor.read(0x99);
    monitor.goDeaf(1);
    QVERIFY(!monitor.read(0x10).ok());
    QVERIFY(!monitor.read(0x10).ok()); // it woke up, but has forgotten the announcement
    QCOMPARE(monitor.history().back().outcome, Outcome::Unexpected);
    QCOMPARE(readPair(monitor, 0x10).current, 20u);

    monitor.setPlugged(false);
    QCOMPARE(readPair(monitor, 0x10).error, kErrorNoSuchDevice);
}

void TestVirtualDesk::spendsItsLatency()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    monitor.setLatency(kRealisticRead, kRealisticWrite);
    m_clock.slept = {};
    writePair(monitor, 0x10, 1);
    readPair(monitor, 0x10);
    QCOMPARE(m_clock.slept, 2 * kRealisticRead + 2 * kRealisticWrite);
}

void TestVirtualDesk::enumeratesWhatIsPlugged()
{
    VirtualDesk desk(m_clock);
    platform::VirtualPlatform platform(desk, m_clock);
    platform::Displays &displays = platform.displays();
    QCOMPARE(displays.activePaths()->size(), 2u);
    QVERIFY(displays.activePaths()->at(0) != displays.activePaths()->at(1));
    QVERIFY(!displays.screens().at(0).geometry.intersects(displays.screens().at(1).geometry));

    // From the display's name to the EDID that tells the model.
    const auto device = displays.monitor(displays.adapter(1)->name, 0);
    QVERIFY(device && device->id.startsWith("\\\\?\\DISPLAY#QVL3202#"));
    QString key = device->id.mid(4, device->id.indexOf("#{") - 4).replace('#', '\\');
    key = "SYSTEM\\CurrentControlSet\\Enum\\" + key + "\\Device Parameters";
    QCOMPARE(displays.localMachineValue(key, "EDID")->bytes, buildEdid(desk.monitor(1).model()));
    desk.setRegistryEdid(1, std::nullopt);
    QVERIFY(!displays.localMachineValue(key, "EDID"));

    const auto before = desk.displays();
    desk.unplug(0);
    QCOMPARE(desk.displays().size(), 1u);
    QCOMPARE(displays.activePaths()->size(), 1u);
    QCOMPARE(displays.screens().size(), 1u);
    QVERIFY(!displays.info(before.at(1))); // handles of the old set-up are no good
    QCOMPARE(displays.info(desk.displays().at(0))->deviceName, QString("\\\\.\\DISPLAY2"));

    desk.plug(0);
    desk.setMonitorDisplay(1, 0);
    QCOMPARE(desk.displays().size(), 1u);
    QCOMPARE(displays.activePaths()->at(0), displays.activePaths()->at(1)); // one source, two monitors
    QVERIFY(displays.monitor(displays.adapter(0)->name, 1));
    desk.unplug(0);
    desk.unplug(1);
    QVERIFY(!displays.activePaths());
}

void TestVirtualDesk::tracksHandles()
{
    VirtualDesk desk(m_clock);
    platform::VirtualPlatform platform(desk, m_clock);
    platform::MonitorConfiguration &monitors = platform.monitors();
    std::vector<platform::PhysicalMonitor> records(1);
    const auto display = desk.displays().at(1);
    QCOMPARE(*monitors.count(display), 1u);
    QVERIFY(monitors.fetch(display, records));
    std::uint32_t current = 0, maximum = 0;
    QVERIFY(monitors.setFeature(records[0].handle, 0x99, 40));
    QVERIFY(monitors.setFeature(records[0].handle, 0x10, 40));
    QCOMPARE(desk.monitor(1).value(0x10), std::uint16_t(40));
    QCOMPARE(desk.handlesOpen(), 1);

    monitors.destroy(records);
    QCOMPARE(desk.handlesOpen(), 0);
    QCOMPARE(desk.handleFaults(), 0);
    QVERIFY(!monitors.getFeature(records[0].handle, 0x99, current, maximum));
    QCOMPARE(monitors.lastError(), kErrorInvalidHandle);
    monitors.destroy(records);
    QCOMPARE(desk.handleFaults(), 2);
}

void TestVirtualDesk::tellsTheRegisteredWindow()
{
    VirtualDesk desk(m_clock);
    platform::VirtualPlatform platform(desk, m_clock);
    Receiver registered, other;
    void *token = platform.deviceNotifications().registerInterface(registered.winId(), kMonitorInterfaceClass);
    QVERIFY(token != nullptr);
    QVERIFY(platform.deviceNotifications().registerInterface(other.winId(), {1, 2, 3, {}}) != nullptr);

    desk.unplug(1);
    desk.unplug(1); // nothing left to pull out
    desk.plug(1);
    QCOMPARE(registered.messages.size(), 2u);
    QCOMPARE(registered.messages[0].event, platform::kDeviceRemoveComplete);
    QCOMPARE(registered.messages[1].event, platform::kDeviceArrival);
    QCOMPARE(registered.messages[1].deviceType, platform::kDeviceTypeInterface);
    QVERIFY(registered.messages[1].interfaceClass == kMonitorInterfaceClass);
    QVERIFY(other.messages.empty());

    platform.deviceNotifications().unregister(token);
    desk.unplug(1);
    QCOMPARE(registered.messages.size(), 2u);
}

void TestVirtualDesk::buildsValidEdid()
{
    for (const MonitorModel &model : monitorModels()) {
        const QByteArray edid = buildEdid(model);
        QCOMPARE(edid.size(), 128);
        int sum = 0;
        for (const char byte : edid)
            sum += static_cast<unsigned char>(byte);
        QCOMPARE(sum % 256, 0);
        const qsizetype tag = edid.indexOf(QByteArray("\0\0\0\xFC\0", 5));
        QVERIFY(tag == 72 || tag == 90 || tag == 108);
        QCOMPARE(edid.mid(tag + 5, 13).trimmed(), QByteArray(model.name));
    }
}

void TestVirtualDesk::readsScripts()
{
    QString error;
    const auto setup = parseDeskScript(R"({
        "latency": {"read_ms": 4, "write_ms": 5}, "topology": "clone", "administrator": false,
        "displays": [{"bounds": [0, 0, 800, 600]}],
        "monitors": [
            {"model": "Q32-MPCS", "edid": "00 ff", "values": {"0x10": 12},
             "faults": [{"event": "refuse", "code": "0x12", "times": "always"}]},
            {"model": "Q27-OLED", "plugged": false, "edid": {"random": 64}, "latency": "none"}],
        "events": [{"at_ms": 700, "event": "plug", "monitor": 1}, {"at_ms": 900, "event": "deaf", "times": 2}]
    })",
                                       error);
    QVERIFY2(setup, qPrintable(error));
    VirtualDesk desk(m_clock, *setup);
    QCOMPARE(desk.administrator, false);
    QCOMPARE(desk.screens().at(0).geometry, QRect(0, 0, 800, 600));
    QCOMPARE(desk.monitor(0).readLatency().count(), 4);
    QCOMPARE(desk.monitor(1).readLatency().count(), 0);
    QCOMPARE(readPair(desk.monitor(0), 0x10).current, 12u);
    for (int i = 0; i < 3; ++i)
        QVERIFY(!readPair(desk.monitor(0), 0x12).ok());

    QCOMPARE(desk.paths().size(), 1u);
    m_clock.later.clear();
    desk.startEvents();
    desk.startEvents();
    QCOMPARE(m_clock.later.size(), 2u);
    QCOMPARE(m_clock.later[0].first.count(), 700);
    m_clock.later[0].second();
    QCOMPARE(desk.paths().size(), 2u);
    m_clock.later[1].second();
    QVERIFY(!desk.monitor(0).read(0x99).ok());
    QVERIFY(!desk.monitor(0).read(0x99).ok());
    QVERIFY(desk.monitor(0).read(0x99).ok());
}

void TestVirtualDesk::namesScriptFaults_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("not JSON") << QByteArray("{\n\"monitors\": [,]\n}") << "line 2";
    QTest::newRow("not an object") << QByteArray("[1]") << "object";
    QTest::newRow("unknown model") << QByteArray(R"({"monitors": [{"model": "Q1"}]})") << "\"Q1\"";
    QTest::newRow("no such display") << QByteArray(R"({"monitors": [{"model": "Q27-OLED", "display": 2}]})")
                                     << "\"display\"";
    QTest::newRow("display taken away") << QByteArray(R"({"displays": [{}]})") << "fewer displays";
    QTest::newRow("unknown event") << QByteArray(R"({"events": [{"at_ms": 1, "event": "dance"}]})") << "\"dance\"";
    QTest::newRow("no such monitor") << QByteArray(R"({"events": [{"event": "plug", "monitor": 9}]})") << "\"monitor\"";
    QTest::newRow("odd hexadecimal") << QByteArray(R"({"monitors": [{"model": "Q27-OLED", "edid": "00f"}]})")
                                     << "\"edid\"";
    QTest::newRow("negative wait") << QByteArray(R"({"latency": {"read_ms": -1}})") << "\"read_ms\"";
    QTest::newRow("refuse what") << QByteArray(R"({"events": [{"event": "refuse"}]})") << "\"code\"";
}

void TestVirtualDesk::namesScriptFaults()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, complaint);
    QString error;
    QVERIFY(!parseDeskScript(script, error));
    QVERIFY2(error.contains(complaint), qPrintable(error));

    QTemporaryDir folder;
    QFile file(folder.filePath("desk.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(script) == script.size());
    file.close();
    qputenv("QUORVEL_DESK_SCRIPT", file.fileName().toLocal8Bit());
    const QString pattern = "Desk script " + QRegularExpression::escape(file.fileName() + " cannot be used: " + error);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
    const DeskSetup setup = setupFromEnvironment();
    qunsetenv("QUORVEL_DESK_SCRIPT");
    QCOMPARE(setup.monitors.size(), 2u);
    QCOMPARE(setup.readLatency, kRealisticRead);
}

void TestVirtualDesk::holdsNamesOnce()
{
    QTemporaryDir folder;
    VirtualDesk first(m_clock), second(m_clock);
    first.setMutexFolder(folder.path());
    second.setMutexFolder(folder.path());
    platform::VirtualPlatform one(first, m_clock), two(second, m_clock);

    const platform::NamedMutex held = one.process().createMutex("QUORVEL");
    QVERIFY(held.handle != nullptr && held.error == 0);
    const platform::NamedMutex refused = two.process().createMutex("QUORVEL");
    QVERIFY(refused.handle != nullptr); // to be closed, as on the system
    QCOMPARE(refused.error, platform::kErrorAlreadyExists);
    QCOMPARE(two.process().createMutex("OTHER").error, 0u);

    two.process().closeHandle(refused.handle); // which does not free the name
    QCOMPARE(two.process().createMutex("QUORVEL").error, platform::kErrorAlreadyExists);
    one.process().closeHandle(held.handle);
    QCOMPARE(two.process().createMutex("QUORVEL").error, 0u);
}

QTEST_MAIN(TestVirtualDesk)
#include "tst_virtualdesk.moc"
