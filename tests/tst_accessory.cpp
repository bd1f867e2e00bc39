#include <QPushButton>
#include <QtTest>

#include "support/accessoryfixture.h"
#include "support/matrixforms.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"
#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/accessorypanel.h"
#include "virtualdesk/accessoryscreen.h"

using virtualdesk::kForEver;

namespace {

using Build = std::function<void(AccessoryReport &)>;

QByteArray hex(const AccessoryReport &report)
{
    const auto bytes = report.written();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex();
}

} // namespace

/// The reports, what the accessory makes of wrong ones, and finding, opening and closing it, by the program and by hand
/// on the desk's panel.
class TestAccessory : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void reports_data();
    void reports();
    void deviceRefusesWrongReports();
    void findAndOpen_data();
    void findAndOpen();
    void flagsAreSticky();
    void panelShowsTheAccessory();
};

void TestAccessory::reports_data()
{
    columns<Build, QByteArray>("build", "expected");
    const auto row = [](const char *name, const QByteArray &expected, const Build &build) {
        QTest::newRow(name) << build << expected;
    };
    static constexpr std::int32_t kCells[] = {1, 2}; // 2 is no lit cell
    static constexpr std::uint8_t kChoice[] = {1, 3, 5};
    static constexpr bool kEvents[] = {true, false, true};
    row("upload start", "01c024ab51", [](auto &r) { buildUploadStart(r, 0x24); });
    row("text start", "01c02f6c10", [](auto &r) { buildUploadStart(r, kTextMode); });
    row("upload chunk", "01c0240cb60cb6fe009943",
        [](auto &r) { buildUploadChunk(r, 0x24, 3254, 3254, std::span("1\n", 2)); });
    row("one byte", "01c02400030003fedc5c", [](auto &r) { buildUploadChunk(r, 0x24, 3, 3, std::span("1", 1)); });
    row("live chunk", "01e00000110002ff007052", [](auto &r) { buildLiveChunk(r, 17, 2, kCells); });
    row("live stop", "01e001b089", [](auto &r) { buildLiveStop(r); });
    row("no choice", "01b00bb735", [](auto &r) { buildAnimationChoice(r, {}); });
    row("choice", "01b00b010305cdf6", [](auto &r) { buildAnimationChoice(r, kChoice); });
    row("settings", "01a00a05649d00", [](auto &r) { buildSystemSettings(r, 5, 100); });
    row("lamp off", "01d00400f972", [](auto &r) { buildMatrixLamp(r, false); });
    row("lamp on", "01d0040139b3", [](auto &r) { buildMatrixLamp(r, true); });
    row("game events", "0602fe00fe" + QByteArray(2 * 59, '0'), [](auto &r) { buildGameChoice(r, kEvents); });
    row("game settings", "06010709" + QByteArray(2 * 60, '0'), [](auto &r) { buildGameSettings(r, 7, 9); });
}

void TestAccessory::reports()
{
    const auto [build, expected] = fetch<Build, QByteArray>();
    AccessoryReport report;
    report.bytes.fill(0xEE); // what was in the buffer before must not show
    build(report);
    QCOMPARE(hex(report), expected);
    connectDevice();
    QCOMPARE(writeHid(report), HidWrite::Done);
    m_faultsExpected = accessory().protocolFaults(); // the chunks have no beginning here
}

void TestAccessory::deviceRefusesWrongReports()
{
    connectDevice();
    for (const auto &[report, fault] : {std::pair("", "empty report"),
                                        {"02c024ab51", "unknown report"},
                                        {"01c024ab52", "wrong checksum"},
                                        {"01c02451ab", "wrong checksum"},   // low byte first
                                        {"01c024ab5100", "wrong checksum"}, // padded
                                        {"01c024", "wrong length"},
                                        {"01c02400030003fedc5c", "chunk without upload"},
                                        {"01e0000011000200ffc053", "short chunk"},
                                        {"0602fe", "wrong length"}}) {
        const QByteArray sent = QByteArray::fromHex(report);
        const std::span bytes(reinterpret_cast<const std::uint8_t *>(sent.constData()),
                              static_cast<std::size_t>(sent.size()));
        QCOMPARE(platform::desk().hid().write(accessoryLink.handle, bytes), int(sent.size()));
        QCOMPARE(accessory().history().back().fault, fault);
        ++m_faultsExpected;
        QCOMPARE(accessory().state().uploads, 0);
    }
}

void TestAccessory::findAndOpen_data()
{
    columns<bool, bool, bool, QStringList, int>("others", "plugged", "opens", "log", "held"); // held: not released
    const QStringList away = {"HID device  not find"};
    QTest::newRow("there") << true << true << true << QStringList{"HID device find", "HID open OK"} << 1;
    QTest::newRow("alone") << false << true << true << QStringList{"HID device find", "HID open OK"} << 0;
    QTest::newRow("does not open") << true << true << false << QStringList{"HID device find", "HID open Fail "} << 1;
    QTest::newRow("away") << true << false << true << away << 2;
    QTest::newRow("no device at all") << false << false << true << QStringList() << 0;
}

void TestAccessory::findAndOpen()
{
    const auto [others, plugged, opens, log] = fetch<bool, bool, bool, QStringList>();
    m_desk->desk.hasHidDevices = others;
    accessory().setPlugged(plugged);
    accessory().failOpens(opens ? 0 : kForEver);
    reopenHid();
    QStringList said = m_desk->takeLog();
    if (!said.isEmpty() && said.last().startsWith("HID open OK")) {
        QVERIFY(said.last().size() > qsizetype(strlen("HID open OK ")));
        said.last().truncate(qsizetype(strlen("HID open OK")));
    }
    QCOMPARE(said, log);
    QTEST(m_desk->desk.hidEntriesHeld, "held");
    QCOMPARE(accessoryLink.found.has_value(), plugged);
    QCOMPARE(accessoryLink.opened, plugged && opens);
    QCOMPARE(accessoryLink.handle != nullptr, plugged && opens);
}

void TestAccessory::flagsAreSticky()
{
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // not found yet: not even tried
    QVERIFY(m_desk->takeLog().isEmpty());
    connectDevice();
    accessory().setPlugged(false);
    QVERIFY(Fun_hid_find(kAccessoryVendor, kAccessoryProduct));
    QVERIFY(m_desk->takeLog().isEmpty());
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // open already
    QCOMPARE(accessory().handlesOpen(), 1);
    accessory().setPlugged(true);
    QList<int> told; // a panel follows it
    const int listener = accessory().addListener([&] { told.append(accessory().handlesOpen()); });
    reopenHid(); // the opened flag is still set: closed and nothing else
    QVERIFY(!accessoryLink.handle);
    connectDevice();
    accessory().removeListener(listener);
    QCOMPARE(told, (QList<int>{0, 1}));
}

void TestAccessory::panelShowsTheAccessory()
{
    connectDevice();
    virtualdesk::AccessoryPanel panel(m_desk->desk);
    panel.show();
    QCOMPARE(panel.matrix()->litCells(), 0);
    const auto button = [&panel](const char *name) { return panel.findChild<QPushButton *>(QLatin1String(name)); };
    accessory().setForm(1);
    useForm(1);
    sendLiveFrame(std::vector<std::int32_t>(1050, 1));
    QTRY_COMPARE(panel.matrix()->litCells(), 1050);
    QVERIFY(button("form")->isChecked());
    for ([[maybe_unused]] const int form : virtualdesk::knownForms())
        button("form")->click();
    QCOMPARE(accessory().form(), 1); // through all of them
    button("unplug")->click();
    QVERIFY(!accessory().isPlugged());
    QTRY_COMPARE(panel.matrix()->litCells(), 0);
    button("unplug")->click();
    connectDevice();
    button("refuse")->click();
    AccessoryReport report;
    buildLiveStop(report);
    QCOMPARE(writeHid(report), HidWrite::Failed);
    button("refuse")->click();
    connectDevice();
    button("pull")->click();
    for (int i = 1; i <= 8; ++i)
        QCOMPARE(writeHid(report), i < 8 ? HidWrite::Done : HidWrite::Failed);
    QTRY_VERIFY(button("unplug")->isChecked());
    QVERIFY(!button("pull")->isChecked());
}

QTEST_MAIN(TestAccessory)
#include "tst_accessory.moc"
