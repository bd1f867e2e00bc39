#include <optional>
#include <thread>

#include <QPushButton>
#include <QtTest>

#include "platform/virtual/virtualplatform.h"
#include "support/manualclock.h"
#include "support/textfile.h"
#include "support/vendorpairs.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/desksetup.h"
#include "virtualdesk/monitorpanel.h"
#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/requestlog.h"
#include "virtualdesk/screenview.h"
#include "virtualdesk/simulatedmonitor.h"
#include "virtualdesk/virtualdesk.h"

using namespace std::chrono_literals;
using namespace virtualdesk;

// The screen is one of 200 %: what the toolkit counts in points is not what the system counts in pixels.
[[maybe_unused]] static const bool s_isScaled = qputenv("QT_SCALE_FACTOR", "2");

using Steps = QList<QPair<int, int>>; // code, and the value written or -1 for a read

/// The simulated desk and its monitors, on which all the other suites stand.
class TestVirtualDesk : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

private Q_SLOTS:
    void enumeratesWhatIsPlugged();
    void tracksHandles();
    void holdsNamesOnce();
    void logsRequests();
    void refusesWhatWasNotAnnounced();
    void countsMixedUpRequests();
    void limitsValues();
    void keepsABlockPerMode();
    void faultsStrikeAndEnd();
    void spendsItsLatency();
    void takesItsTime();
    void menuFitsTheModel();
    void darkScreenSaysWhy();
    void fullBufferForgets();
    void endsListeners();
};

void TestVirtualDesk::enumeratesWhatIsPlugged()
{
    VirtualDesk desk(m_clock);
    platform::VirtualPlatform platform(desk, m_clock);
    platform::Displays &displays = platform.displays();
    QCOMPARE(displays.activePaths()->size(), 2u);
    QVERIFY(displays.activePaths()->at(0) != displays.activePaths()->at(1));
    QVERIFY(!displays.screens().at(0).geometry.intersects(displays.screens().at(1).geometry));
    QCOMPARE(displays.screens().at(0).geometry, QGuiApplication::primaryScreen()->geometry());
    QCOMPARE(displays.info(desk.displays().enumerate().at(0))->bounds.size(),
             2 * QGuiApplication::primaryScreen()->size());

    // From the display's name to the EDID that tells the model.
    const auto device = displays.monitor(displays.adapter(1)->name, 0);
    QVERIFY(device && device->id.startsWith("\\\\?\\DISPLAY#QVL3202#"));
    QString key = device->id.mid(4, device->id.indexOf("#{") - 4).replace('#', '\\');
    key = "SYSTEM\\CurrentControlSet\\Enum\\" + key + "\\Device Parameters";
    QCOMPARE(displays.localMachineValue(key, "EDID")->bytes, buildEdid(desk.monitor(1).model()));
    desk.displays().setRegistryEdid(1, std::nullopt);
    QVERIFY(!displays.localMachineValue(key, "EDID"));

    const auto before = desk.displays().enumerate();
    desk.unplug(0);
    QCOMPARE(desk.displays().enumerate().size(), 1u);
    QCOMPARE(displays.activePaths()->size(), 1u);
    QCOMPARE(displays.screens().size(), 1u);
    QVERIFY(!displays.info(before.at(1))); // handles of the old set-up are no good
    QCOMPARE(displays.info(desk.displays().enumerate().at(0))->deviceName, QString("\\\\.\\DISPLAY2"));

    desk.plug(0);
    desk.displays().setMonitorDisplay(1, 0);
    QCOMPARE(desk.displays().enumerate().size(), 1u);
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
    const auto display = desk.displays().enumerate().at(1);
    QCOMPARE(*monitors.count(display), 1u);
    QVERIFY(monitors.fetch(display, records));
    QCOMPARE(desk.handles().countOpen(), 1);

    monitors.destroy(records);
    QCOMPARE(desk.handles().countOpen(), 0);
    QCOMPARE(desk.handles().faults(), 0);
    QCOMPARE(monitors.getFeature(records[0].handle, 0x99).error, kErrorInvalidHandle);
    monitors.destroy(records);
    QCOMPARE(desk.handles().faults(), 2);
}

void TestVirtualDesk::holdsNamesOnce()
{
    QTemporaryDir folder;
    VirtualDesk first(m_clock), second(m_clock);
    first.process().setFolder(folder.path());
    second.process().setFolder(folder.path());
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
    QVERIFY(one.startUp().setValue("QUORVEL", "x") && two.startUp().value("QUORVEL") == "x");
    first.process().setFolder(folder.filePath("gone/far"));
    QVERIFY(QDir(folder.path()).mkpath("gone") && writeText(folder.filePath("gone/far"), "no folder"));
    QVERIFY(!one.startUp().setValue("QUORVEL", "x"));
}

void TestVirtualDesk::logsRequests()
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath("requests.log");
    const auto lines = [&fileName] { return readText(fileName).split('\n'); };
    VirtualDesk desk(m_clock);
    m_clock.setNow(QDateTime(QDate(2024, 3, 9), QTime(7, 8, 9, 10)));
    {
        const RequestLog log(desk, fileName);
        writePair(desk.monitor(0), 0x10, 250);
        desk.monitor(1).read(0x10);
        // Whoever watches reads along: nothing waits for the end of the log.
        QCOMPARE(lines(),
                 (QList<QByteArray>{"07:08:09.010 Q27-OLED W 99 250 ok", "07:08:09.010 Q27-OLED W 10 250 adjusted",
                                    "07:08:09.010 Q32-MPCS R 10 0 unexpected", ""}));
    }
    desk.monitor(0).read(0x99);
    desk.unplug(1);
    const RequestLog next(desk, fileName);
    desk.monitor(1).read(0x99);
    QCOMPARE(lines().mid(3), (QList<QByteArray>{"07:08:09.010 Q32-MPCS R 99 0 unplugged", ""}));

    QTest::ignoreMessage(QtWarningMsg, qPrintable("Cannot write " + folder.path()));
    const RequestLog nowhere(desk, folder.path());
    QVERIFY(desk.monitor(0).read(0x99).ok()); // the desk does without
}

void TestVirtualDesk::refusesWhatWasNotAnnounced()
{
    const std::tuple<const char *, Steps, bool, int> rows[] = {
        {"write pair", {{0x99, 70}, {0x10, 70}}, true, 0},
        {"write alone", {{0x10, 70}}, false, 1},
        {"announcement serves once", {{0x99, 70}, {0x10, 70}, {0x10, 70}}, false, 1},
        {"other value", {{0x99, 70}, {0x10, 71}}, false, 1},
        {"read announced, written", {{0x99, -1}, {0x10, 0}}, false, 1},
        {"code outside the table", {{0x99, -1}, {0x11, -1}}, false, 0},
        {"pair broken by another", {{0x99, 5}, {0x99, 70}, {0x10, 70}}, true, 1},
        {"stray continuation", {{0xFE, -1}}, false, 1},
        {"odd selector", {{0x99, -1}, {0x22, -1}, {0x03, -1}}, false, 1},
        {"selector that is a command code too", {{0x99, -1}, {0x22, -1}, {0x10, -1}}, true, 0},
        {"selector cannot be written", {{0x99, -1}, {0x22, -1}, {0x10, 16}}, false, 1},
    };
    for (const auto &[name, steps, accepted, faults] : rows) {
        SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
        Reply last;
        for (const auto &[code, value] : steps) {
            const auto byte = static_cast<std::uint8_t>(code);
            last = value < 0 ? monitor.read(byte) : monitor.write(byte, static_cast<std::uint32_t>(value));
        }
        QVERIFY2(last.ok() == accepted && monitor.protocolFaults().total() == faults, name);
        QCOMPARE(monitor.history().size(), static_cast<std::size_t>(steps.size()));
        QCOMPARE(monitor.history().back().ok(), accepted);
    }
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
    // An option that it lacks, what can only be read, a scene that it lacks: the wire tells nothing about the value.
    for (const auto &[code, sent, kept] : {std::tuple(0x14, 11u, 3u), {0xED, 1u, 0x60u}, {0x22, 24u, 2u}}) {
        QVERIFY(writePair(monitor, static_cast<std::uint8_t>(code), sent));
        QCOMPARE(readPair(monitor, static_cast<std::uint8_t>(code)).current, kept);
    }
    QCOMPARE(monitor.protocolFaults().badValues, 3);
    const Reply office = readPair(monitor, 0xEF);
    QVERIFY(office.maximum > office.current); // a panel is wider than high
}

void TestVirtualDesk::keepsABlockPerMode()
{
    SimulatedMonitor monitor(*findModel("Q27-OLED"), m_clock);
    for (const auto &[code, value] : {std::pair(0x22, 2u), {0x10, 31u}, {0x9B, 77u}, {0x22, 10u}, {0x10, 32u}})
        QVERIFY(writePair(monitor, static_cast<std::uint8_t>(code), value));
    QCOMPARE(monitor.block(2).at(0), char(31));
    QCOMPARE(monitor.block(2).at(16), char(77)); // the red hue
    QCOMPARE(monitor.block(10).at(0), char(32));

    // A factory mode shows its own picture and forgets what is changed in it.
    const auto factory = static_cast<std::uint32_t>(monitor.block(9).at(0));
    for (const auto &[scene, brightness] : {std::pair(9u, factory), {10u, 32u}, {9u, factory}}) {
        QVERIFY(writePair(monitor, 0x22, scene));
        QCOMPARE(readPair(monitor, 0x10).current, brightness);
        QVERIFY(writePair(monitor, 0x10, scene == 9 ? 3 : 32));
    }
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
    const QDateTime before = m_clock.now();
    writePair(monitor, 0x10, 1);
    readPair(monitor, 0x10);
    QCOMPARE(before.msecsTo(m_clock.now()), (2 * kRealisticRead + 2 * kRealisticWrite).count());
}

/// What goes on for a while ends when it should, and only then.
void TestVirtualDesk::takesItsTime()
{
    VirtualDesk desk(m_clock);
    SimulatedMonitor &monitor = desk.monitor(0);
    for (const bool reset : {false, true}) {
        monitor.setValue(kCareNowCode, 1); // by its own button, before anybody has asked it anything
        QCOMPARE(int(monitor.value(kCareRunningCode)), 1);
        if (reset)
            QVERIFY(writePair(monitor, kResetCode, 0));
        else
            m_clock.advance(6min);
        QCOMPARE(int(monitor.value(kCareRunningCode)), 0);
    }
    monitor.setValue(kCareNowCode, 1);
    QCOMPARE(int(monitor.value(kCareRunningCode)), 1);

    for (const bool sleepsAgain : {true, false}) {
        desk.sleep();
        desk.wake();
        if (sleepsAgain)
            desk.sleep();
        m_clock.advance(2s);
        QCOMPARE(monitor.isAsleep(), sleepsAgain);
    }
}

/// Buttons stand beside the functions that the model has, and change nothing where there is no monitor.
void TestVirtualDesk::menuFitsTheModel()
{
    const MonitorModel &model = *findModel("Q32-MPCS"); // which lacks most
    const auto functions = std::ranges::count_if(
        osdMenu(), [&model](const OsdFunction &function) { return hasFunction(model, function.code); });
    for (const bool hasMonitor : {true, false}) {
        DeskSetup setup = defaultSetup();
        setup.monitors.resize(hasMonitor ? 1 : 0, MonitorSetup());
        for (MonitorSetup &monitor : setup.monitors)
            monitor.model = &model;
        VirtualDesk desk(m_clock, setup);
        MonitorPanel panel(desk);
        panel.resize(400, 8000); // all rows are in sight
        panel.show();
        const auto shown = [&panel] {
            const auto buttons = panel.findChildren<QPushButton *>("osdButton");
            return std::ranges::count_if(buttons, [&](const QWidget *button) { return button->isVisibleTo(&panel); });
        };
        if (hasMonitor)
            QTRY_COMPARE(shown(), 2 * functions);
        for (const QPushButton *button : panel.findChildren<QPushButton *>("osdButton"))
            QCOMPARE(button->isEnabled(), hasMonitor);
    }
}

/// The panel's screen is dark while the monitor sleeps or has no cable, and says which of both it is.
void TestVirtualDesk::darkScreenSaysWhy()
{
    VirtualDesk desk(m_clock);
    MonitorPanel panel(desk);
    panel.resize(400, 800);
    panel.show();
    const auto *screen = panel.findChild<ScreenView *>();
    const QString lit = sceneName(desk.monitor(0).value(kSceneCode));
    QTRY_COMPARE(screen->accessibleDescription(), lit);
    desk.sleep();
    QTRY_COMPARE(screen->accessibleDescription(), QString("Asleep"));
    desk.unplug(0);
    QTRY_COMPARE(screen->accessibleDescription(), QString("Unplugged"));
    desk.plug(0);
    desk.wake();
    m_clock.advance(2s);
    QTRY_COMPARE(screen->accessibleDescription(), lit);
}

/// A client that did not look for ten seconds finds as much as its buffer holds, and what plays now behind it.
void TestVirtualDesk::fullBufferForgets()
{
    EndpointSetup setup;
    setup.mix = MixKind::Integer;
    setup.sound.sound = Sound::Tone;
    SimulatedEndpoint endpoint(m_clock, setup);
    LoopbackStream stream;
    endpoint.ask(stream, &LoopbackStream::open);
    endpoint.ask(stream, &LoopbackStream::initialise, platform::kStreamLoopback, 1'000'000 /* 100 ms */,
                 endpoint.mixFormat());
    QCOMPARE(endpoint.ask(stream, &LoopbackStream::start), platform::kAudioOk);
    m_clock.advance(10s);
    int packets = 0;
    platform::AudioPacket packet;
    while (endpoint.ask(stream, &LoopbackStream::getBuffer, packet) == platform::kAudioOk) {
        QCOMPARE(endpoint.ask(stream, &LoopbackStream::releaseBuffer, packet.frames), platform::kAudioOk);
        ++packets;
    }
    QCOMPARE(packets, 10);
}

void TestVirtualDesk::endsListeners()
{
    Listeners<> listeners;
    int second = 0;
    int calls = 0;
    listeners.add([&] { listeners.remove(second); });
    second = listeners.add([&calls] { ++calls; });
    listeners.tell();
    QCOMPARE(calls, 0); // whoever ended it may have deleted what it belongs to
}

QTEST_MAIN(TestVirtualDesk)
#include "tst_virtualdesk.moc"
