#include <numeric>

#include <QtTest>
#include <QtWidgets>

#include "ddc_protocol/devicestate.h"
#include "searchdevicedlg.h"
#include "sessionhost.h"
#include "support/deskfixture.h"
#include "usb-hid/hidtransport.h"

using virtualdesk::kForEver;

namespace {

constexpr platform::Guid kAccessoryClass{0xE6327CAD, 0xDCEC, 0x4949, {0xAE, 0x8A, 0x99, 0x1E, 0x97, 0x6A, 0x79, 0xD2}};

/// A session that says so instead of ending the process.
class Session : public SearchDeviceDlg
{
public:
    int exits = 0;
    int notRestarted = 0;

protected:
    void exitUnsupported() override { ++exits; }
    void tellNotRestarted() override { ++notRestarted; }
};

/// A main window that keeps what it was asked for.
class Host : public SessionHost
{
public:
    void refreshPages() override
    {
        calls.append("refresh");
        if (onRefresh)
            onRefresh();
    }
    void reconnectPages() override { calls.append("reconnect"); }
    void updateInterface() override { calls.append("update"); }
    void hideWindow() override { calls.append("hide"); }
    void showWindow() override { calls.append("show"); }
    void deviceArrived() override { calls.append("arrived"); }
    void deviceRemoved() override { calls.append("removed"); }
    void systemNoticed(SystemNotice) override { calls.append("noticed"); }
    void reopenHidDevice() override
    {
        calls.append(accessoryLink.found || accessoryLink.opened ? "reopen" : "reopen anew");
    }
    bool mayLeave() override { return !keepsWork; }
    QStringList take() { return std::exchange(calls, {}); }

    QStringList calls;
    bool keepsWork = false;
    std::function<void()> onRefresh;
};

} // namespace

class TestSession : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void startUpReadOrder();
    void snapshotValues();
    void sceneBlockBytes();
    void passes_data();
    void passes();
    void storedIndexOnLaterSearches();
    void reasons();
    void arrivalDuringTheStartUpRead();
    void sceneReads();
    void brokenBlockSchedulesReconnect();
    void deviceMessages();
    void silentInTheMiddle();
    void chosenDeviceIsStoredAndTheProgramRestarts();

private:
    std::unique_ptr<Session> m_session;
    Host m_host;
};

void TestSession::init()
{
    DeskSuite::init();
    m_session = std::make_unique<Session>();
    m_host = Host();
    m_desk->monitor(0).setValue(0x22, 12);
    m_desk->monitor(1).setValue(0x22, 9);
}

void TestSession::cleanup()
{
    QCOMPARE(m_desk->desk.handles().faults(), 0);
    m_session.reset();
    DeskSuite::cleanup();
}

void TestSession::startUpReadOrder()
{
    QList<int> progress; // as the user sees it
    const int listener = m_desk->monitor().addListener([&progress](const virtualdesk::Request &) {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (const auto *dialog = qobject_cast<const QProgressDialog *>(window))
                progress.append(100 * dialog->value() / dialog->maximum());
        }
    });
    m_session->searchDevices();
    m_desk->monitor().removeListener(listener);
    QVERIFY(std::is_sorted(progress.begin(), progress.end()));
    QVERIFY(progress.first() == 0 && progress.last() > 90);
    QStringList expected = {"R 22", "R f6", "R f7", "R ea", "R 22", "R 0c"};
    expected += QStringList(10, "R fe");
    expected += {"R ec", "R ed", "R ee", "R ef", "R f1", "R f2", "R 3b", "R f8", "R f9"};
    QCOMPARE(m_desk->takeCommands(), expected);
    QCOMPARE(m_desk->takeCommands(1), QStringList());
    QCOMPARE(reloadEdidType.load(), int(kIdle));
    QCOMPARE(settingsInt(kDeviceIndexKey, 7, false), 0);
    QCOMPARE(m_session->exits, 0);

    QVERIFY(m_session->readDataFromDevice()); // by now the capability word says that there is an OLED panel to care for
    const QStringList care = {"R 01", "R 02", "R 03", "R 04", "R 05", "R 06", "R 07",
                              "R 08", "R 09", "R 0a", "R 0d", "R 0b", "R 0e"};
    QCOMPARE(m_desk->takeCommands().mid(4, care.size()), care);
}

void TestSession::snapshotValues()
{
    m_desk->monitor().setValue(0xF6, 33);
    m_desk->monitor().refuse(0xF8, kForEver);
    m_session->searchDevices();
    QCOMPARE(deviceState.value(Command::AudioVolume), 33);
    QCOMPARE(deviceState.value(Command::Composition), -1); // refused, kept as returned, and not known
    QVERIFY(!deviceState.isKnown(Command::Composition));
    QVERIFY(deviceState.isKnown(Command::RestTimer));
    QVERIFY(deviceState.has(Capability::OledPanel));
    QVERIFY(deviceState.officeMaximumHorizontal > deviceState.officeMaximumVertical);
    QCOMPARE(deviceState.lastSceneModeSent.load(), 12);
}

void TestSession::sceneBlockBytes()
{
    std::array<std::uint8_t, 40> bytes = {};
    std::iota(bytes.begin(), bytes.end(), std::uint8_t(1));
    deviceState.storeSceneBlock(10, bytes);
    QCOMPARE(deviceState.value(Command::Sharpness), 3);
    QCOMPARE(deviceState.value(Command::HueCyan), 20); // hues end in C, M, Y
    QCOMPARE(deviceState.value(Command::HueYellow), 22);
    QCOMPARE(deviceState.value(Command::SaturationYellow), 26); // saturations in Y, C, M
    QCOMPARE(deviceState.value(Command::SaturationMagenta), 28);
    QCOMPARE(deviceState.value(Command::LightSensor), 1); // 34 in the block, but it is a switch
    QCOMPARE(deviceState.value(Command::MotionTech), 37);
}

void TestSession::passes_data()
{
    columns<QString, QList<int>, int, int>("stored", "deaf", "chosen", "exits");
    QTest::newRow("first answers") << "0" << QList<int>{} << 0 << 0;
    QTest::newRow("stored one answers") << "1" << QList<int>{} << 1 << 0;
    QTest::newRow("stored one is silent") << "1" << QList<int>{1} << 0 << 0;
    QTest::newRow("first is silent") << "0" << QList<int>{0} << 1 << 0;
    QTest::newRow("stored far beyond the list") << "7" << QList<int>{} << 0 << 0;
    QTest::newRow("all are silent") << "1" << QList<int>{0, 1} << 0 << 1;
    QTest::newRow("alone and late") << "0" << QList<int>{-1} << 0 << 0;
}

void TestSession::passes()
{
    const auto [stored, deaf] = fetch<QString, QList<int>>();
    settingsString(kDeviceIndexKey, stored, true, kConfigFile);
    if (deaf == QList<int>{-1}) {
        m_desk->desk.unplug(1);
        m_desk->monitor().goDeaf(20); // as long as the first pass asks
    } else {
        for (const int index : deaf)
            m_desk->monitor(static_cast<std::size_t>(index)).goDeaf();
    }
    m_session->searchDevices();
    QTEST(settingsInt(kDeviceIndexKey, 0, false), "chosen");
    QTEST(m_session->exits, "exits");
    if (deaf == QList<int>{-1})
        QCOMPARE(m_desk->clock.takeWaits().count(200), 3); // two rests between readings, one between passes
    const QStringList log = m_desk->takeLog();
    QCOMPARE(log.contains("DDC/CI erorr, App exit!"), m_session->exits == 1);
    if (m_session->exits == 1)
        QCOMPARE(log.filter("Connet device Count=").size(), 5);
    m_desk->desk.unplug(0);
    m_desk->desk.unplug(1);
    m_session->exits = 0;
    reloadEdidType = kFullRead;
    m_session->searchDevices();
    QCOMPARE(m_session->exits, 1);
    QCOMPARE(m_desk->takeLog().filter("Connet device Count=").size(), 1); // nobody to try again
}

void TestSession::storedIndexOnLaterSearches()
{
    m_session->searchDevices();
    for (const auto &[stored, used] : {std::pair(2, 0), std::pair(257, 1)}) { // beyond the list; its low byte counts
        settingsInt(kDeviceIndexKey, stored, true);
        m_session->searchDevices();
        QCOMPARE(int(currentMonitorIndex), used);
    }
    m_desk->desk.displays().setPaths(std::vector<platform::DisplayPath>{{1, 1}, {1, 1}}); // clone mode
    m_session->searchDevices();
    QCOMPARE(int(currentMonitorIndex), 0);
}

void TestSession::reasons()
{
    m_session->setHost(&m_host);
    const QStringList again = {"reconnect", "refresh", "update"};
    for (const auto &[reason, calls, commands] : {std::tuple(kReconnect, again, 0), // that reach the monitor
                                                  {kIdle, again, 0},
                                                  {kFullRead, {"hide", "refresh", "show", "update"}, 25},
                                                  {kSceneBlockOnly, {"refresh", "update"}, 12}}) {
        deviceState.clear();
        deviceState.store(Command::SceneMode, 12);
        reloadEdidType = reason;
        m_session->delayedSearchDevices();
        QCOMPARE(m_host.take(), calls);
        QCOMPARE(int(m_desk->takeCommands().size()), commands);
        QCOMPARE(reloadEdidType.load(), int(kIdle));
    }
}

void TestSession::arrivalDuringTheStartUpRead()
{
    bool arrived = false; // the progress dialog lets such events in
    const int listener = m_desk->monitor().addListener([&](const virtualdesk::Request &request) {
        if (request.code == 0xEC && !std::exchange(arrived, true)) {
            m_session->delayedSearchDevices();
            m_session->searchDevices();
        }
    });
    m_session->searchDevices();
    m_desk->monitor().removeListener(listener);
    QCOMPARE(m_desk->takeLog().count("nativeEvent: Aready searching devices Data!"), 2);
    QCOMPARE(m_desk->takeCommands().count("R ed"), 1); // one read, not one within the other
    QCOMPARE(m_session->exits, 0);
    QCOMPARE(reloadEdidType.load(), int(kIdle));
}

void TestSession::sceneReads()
{
    findDevices();
    deviceState.store(Command::SceneMode, 12);
    for (const auto &[mode, result, commands] : {std::tuple(11, false, 0), {-3, true, 0}, {12, true, 12}}) {
        QCOMPARE(m_session->readSceneModeData(mode), result);
        QCOMPARE(int(m_desk->takeCommands().size()), commands);
        QCOMPARE(deviceState.sceneBlockValid(), mode == 12);
    }
}

void TestSession::brokenBlockSchedulesReconnect()
{
    findDevices();
    m_session->setHost(&m_host);
    reloadEdidType = kIdle;
    m_desk->monitor().dropChunks(6);
    QVERIFY(!m_session->readSceneModeData(12));
    QVERIFY(!deviceState.sceneBlockValid()); // what was there is not half overwritten
    QVERIFY(m_desk->takeLog().contains("get cust buffer failed, datelen=  0"));
    QCOMPARE(reloadEdidType.load(), int(kReconnect));
    m_desk->clock.advance(platform::milliseconds(199));
    QCOMPARE(m_host.take(), QStringList());
    m_desk->clock.advance(platform::milliseconds(1));
    QCOMPARE(m_host.take(), (QStringList{"reconnect", "refresh", "update"}));
}

void TestSession::deviceMessages()
{
    m_session->searchDevices();
    m_session->setHost(&m_host);
    accessoryLink.found.emplace();
    accessoryLink.opened = true;
    m_desk->desk.deliverDeviceMessage(platform::kDeviceArrival, kAccessoryClass);
    QCOMPARE(m_host.take(), (QStringList{"arrived", "reopen anew"}));
    m_desk->desk.accessory().setPlugged(false);
    QCOMPARE(m_host.take(), (QStringList{"removed", "removed"})); // an interface is told twice
    m_desk->desk.accessory().setPlugged(true);
    QCOMPARE(m_host.take(), (QStringList{"arrived", "reopen anew"}));
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0));

    m_desk->desk.unplug(1);
    QCOMPARE(m_host.take(), (QStringList{"removed", "removed"}));
    m_desk->desk.plug(1);
    QCOMPARE(m_host.take(), QStringList{"arrived"});
    m_desk->clock.advance(platform::milliseconds(999));
    QCOMPARE(m_host.take(), QStringList());
    m_desk->clock.advance(platform::milliseconds(1));
    QCOMPARE(m_host.take(), (QStringList{"reconnect", "refresh", "update"}));

    platform::NativeMessage other;
    other.message = platform::kMessageDeviceChange;
    other.wParam = platform::kDeviceRemoveComplete; // without a broadcast behind it
    qintptr result = 0;
    QVERIFY(!m_session->nativeEvent("xcb_generic_event_t", &other, &result));
    QCOMPARE(m_host.take(), QStringList());
    m_session->nativeEvent(platform::kNativeEventType, &other, &result);
    QCOMPARE(m_host.take(), QStringList{"removed"});

    const std::unique_ptr<std::uint32_t[]> cut(new std::uint32_t[3]{12, platform::kDeviceTypeInterface, 0});
    other.lParam = reinterpret_cast<std::intptr_t>(cut.get()); // an interface broadcast that ends before its class
    m_session->nativeEvent(platform::kNativeEventType, &other, &result);
    other.wParam = platform::kDeviceArrival;
    m_session->nativeEvent(platform::kNativeEventType, &other, &result);
    QCOMPARE(m_host.take(), QStringList{"removed"});
}

void TestSession::silentInTheMiddle()
{
    int requests = 0;
    const int listener = m_desk->monitor().addListener([&](const virtualdesk::Request &) {
        if (++requests == 15)
            m_desk->monitor().goDeaf(30);
    });
    m_session->searchDevices();
    m_desk->monitor().removeListener(listener);
    QCOMPARE(m_session->exits, 0); // what came before and after the silence is a snapshot to work with
    QVERIFY(deviceState.isKnown(Command::AudioVolume));
    QVERIFY(deviceState.isKnown(Command::RestTimer));
}

void TestSession::chosenDeviceIsStoredAndTheProgramRestarts()
{
    m_session->searchDevices();
    m_session->setHost(&m_host);
    QCOMPARE(m_desk->desk.process().started.size(), std::size_t(0)); // filling the box is no choice
    m_desk->desk.process().start = [] { return false; };
    m_session->deviceBox()->setCurrentIndex(1);
    QCOMPARE(settingsInt(kDeviceIndexKey, 7, false), 0); // what cannot be followed is taken back
    QCOMPARE(m_session->deviceBox()->currentIndex(), 0);
    m_desk->takeCommands();
    reloadEdidType = kRestartProgram;
    m_session->delayedSearchDevices();
    QCOMPARE(m_host.take(), (QStringList{"refresh", "show", "update"}));
    QVERIFY(m_desk->takeCommands().contains("R ed")); // all that the copy would have read
    QCOMPARE(reloadEdidType.load(), int(kIdle));
    QCOMPARE(m_session->notRestarted, 2);
    m_desk->desk.process().start = [] { return true; };
    m_host.keepsWork = true; // begun since the restart was wanted
    reloadEdidType = kRestartProgram;
    m_session->delayedSearchDevices();
    QCOMPARE(m_host.take(), (QStringList{"refresh", "show", "update"}));
    QCOMPARE(m_session->notRestarted, 2);
    QCOMPARE(m_desk->desk.process().quits, 0);
    m_host.keepsWork = false;
    m_session->deviceBox()->setCurrentIndex(1);
    QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), 1);
    QCOMPARE(m_desk->desk.process().quits, 1);
}

QTEST_MAIN(TestSession)
#include "tst_session.moc"
