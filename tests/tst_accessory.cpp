#include <QtTest>

#include "support/accessoryfixture.h"
#include "support/datarow.h"
#include "usb-hid/hidtransport.h"

namespace {

using Build = std::function<void(AccessoryReport &)>;

QByteArray hex(const AccessoryReport &report)
{
    const auto bytes = report.written();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex();
}

} // namespace

/// The reports, and what the accessory makes of wrong ones.
class TestAccessory : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void reports_data();
    void reports();
    void deviceRefusesWrongReports_data();
    void deviceRefusesWrongReports();
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
    QFETCH(Build, build);
    QFETCH(QByteArray, expected);
    AccessoryReport report;
    report.bytes.fill(0xEE); // what was in the buffer before must not show
    build(report);
    QCOMPARE(hex(report), expected);
    connectDevice();
    QCOMPARE(writeHid(report), HidWrite::Done);
    m_faultsExpected = accessory().protocolFaults(); // the chunks have no beginning here
}

void TestAccessory::deviceRefusesWrongReports_data()
{
    columns<QByteArray, QString>("report", "fault");
    const auto row = [](const char *report, const char *fault) {
        QTest::newRow(report) << QByteArray::fromHex(report) << QString::fromLatin1(fault);
    };
    row("", "empty report");
    row("02c024ab51", "unknown report");
    row("01c024ab52", "wrong checksum");
    row("01c02451ab", "wrong checksum");   // low byte first
    row("01c024ab5100", "wrong checksum"); // padded
    row("01c024", "wrong length");
    row("01c02400030003fedc5c", "chunk without upload");
    row("01e0000011000200ffc053", "short chunk");
    row("0602fe", "wrong length");
}

void TestAccessory::deviceRefusesWrongReports()
{
    QFETCH(QByteArray, report);
    connectDevice();
    const std::span bytes(reinterpret_cast<const std::uint8_t *>(report.constData()),
                          static_cast<std::size_t>(report.size()));
    QCOMPARE(platform::desk().hid().write(hidHandle, bytes), int(report.size()));
    QTEST(QString::fromLatin1(accessory().history().back().fault), "fault");
    m_faultsExpected = 1;
    QCOMPARE(accessory().state().uploads, 0);
}

QTEST_GUILESS_MAIN(TestAccessory)
#include "tst_accessory.moc"
