#include <thread>

#include <QFile>
#include <QtTest>

#include "ledmatrix/matrixform.h"
#include "ledmatrix/matrixframe.h"
#include "support/deskfixture.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/crc16.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"

using virtualdesk::AccessoryWrite;
using virtualdesk::kForEver;

namespace {

constexpr char kDataFile[] = "LEDMatrixData.txt";
constexpr qint64 kAnimationCap = 182208;
constexpr qint64 kTextCap = 780078;

using Build = std::function<void(AccessoryReport &)>;

/// Every third character of a drawn file is lit.
QByteArray drawn(qint64 size)
{
    QByteArray characters(size, '0');
    for (qsizetype i = 0; i < characters.size(); i += 3)
        characters[i] = '1';
    return characters;
}

void writeFile(const QByteArray &content)
{
    QFile file{QLatin1String(kDataFile)};
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray hex(const AccessoryReport &report)
{
    const auto bytes = report.written();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())).toHex();
}

std::vector<std::int32_t> patternOf(int form)
{
    std::vector<std::int32_t> cells(static_cast<std::size_t>(matrixCells(form)));
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i] = i % 5 == 0 ? 1 : i % 7 == 0 ? 2 : 0; // 2 is no lit cell
    return cells;
}

std::vector<std::int32_t> litOnly(std::vector<std::int32_t> cells)
{
    for (std::int32_t &cell : cells)
        cell = cell == 1 ? 1 : 0;
    return cells;
}

} // namespace

class TestAccessory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void checksums_data();
    void checksums();
    void reports_data();
    void reports();
    void findAndOpen_data();
    void findAndOpen();
    void foundFlagIsSticky();
    void reopenClosesAndForgets();
    void uploads_data();
    void uploads();
    void progressPastHundred();
    void textProgressRunsTwice();
    void missingFile();
    void fileThatShrinks();
    void pulledOutAtEveryChunk();
    void textEndsWithoutDevice();
    void refusedWriteEndsTheUpload();
    void reopenedUnderAnUpload();
    void stoppedUploadEndsAtOnce();
    void liveFrames_data();
    void liveFrames();
    void liveLatch();
    void deviceRefusesWrongReports_data();
    void deviceRefusesWrongReports();

private:
    virtualdesk::SimulatedAccessory &accessory() { return m_desk->desk.accessory(); }
    QList<int> upload(bool text = false);
    void connectDevice();

    std::unique_ptr<DeskFixture> m_desk;
};

void TestAccessory::init()
{
    m_desk = std::make_unique<DeskFixture>();
}

void TestAccessory::cleanup()
{
    closeHid();
    const int left = accessory().handlesOpen() + accessory().handleFaults();
    m_desk.reset();
    QCOMPARE(left, 0);
}

void TestAccessory::connectDevice()
{
    clearHidFlags();
    reopenHid();
    QVERIFY(hidHandle);
    m_desk->takeLog();
}

QList<int> TestAccessory::upload(bool text)
{
    QList<int> reported;
    const auto progress = [&reported](int percent) { reported.append(percent); };
    if (text)
        uploadText(QLatin1String(kDataFile), progress);
    else
        uploadAnimation(QLatin1String(kDataFile), 0x24, progress);
    return reported;
}

void TestAccessory::checksums_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("crc");
    QTest::newRow("nothing") << QByteArray() << 0xFFFF;
    QTest::newRow("check value of the algorithm") << QByteArray("123456789") << 0x4B37;
    QTest::newRow("text upload") << QByteArray::fromHex("c02f") << 0x6C10;
    QTest::newRow("zeroes") << QByteArray(4, '\0') << 0x2400;
}

void TestAccessory::checksums()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, crc);
    const std::span view(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size()));
    QCOMPARE(int(crc16(view)), crc);
}

void TestAccessory::reports_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const Build &build, const QByteArray &expected) {
        QTest::newRow(name) << build << expected;
    };
    static constexpr std::int32_t kCells[] = {1, 2}; // 2 is no lit cell
    static constexpr std::uint8_t kChoice[] = {1, 3, 5};
    static constexpr bool kEvents[] = {true, false, true};
    row(
        "upload start", [](auto &r) { buildUploadStart(r, 0x24); }, "01c024ab51");
    row(
        "text start", [](auto &r) { buildUploadStart(r, kTextMode); }, "01c02f6c10");
    row(
        "upload chunk", [](auto &r) { buildUploadChunk(r, 0x24, 3254, 3254, std::span("1\n", 2)); },
        "01c0240cb60cb6fe009943");
    row(
        "one byte", [](auto &r) { buildUploadChunk(r, 0x24, 3, 3, std::span("1", 1)); }, "01c02400030003fedc5c");
    row(
        "live chunk", [](auto &r) { buildLiveChunk(r, 17, 2, kCells); }, "01e00000110002ff007052");
    row(
        "live stop", [](auto &r) { buildLiveStop(r); }, "01e001b089");
    row(
        "no choice", [](auto &r) { buildAnimationChoice(r, {}); }, "01b00bb735");
    row(
        "choice", [](auto &r) { buildAnimationChoice(r, kChoice); }, "01b00b010305cdf6");
    row(
        "settings", [](auto &r) { buildSystemSettings(r, 5, 100); }, "01a00a05649d00");
    row(
        "lamp off", [](auto &r) { buildMatrixLamp(r, false); }, "01d00400f972");
    row(
        "lamp on", [](auto &r) { buildMatrixLamp(r, true); }, "01d0040139b3");
    row(
        "game events", [](auto &r) { buildGameChoice(r, kEvents); }, "0602fe00fe" + QByteArray(2 * 59, '0'));
    row(
        "game settings", [](auto &r) { buildGameSettings(r, 7, 9); }, "06010709" + QByteArray(2 * 60, '0'));
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
}

void TestAccessory::findAndOpen_data()
{
    QTest::addColumn<bool>("others");
    QTest::addColumn<bool>("plugged");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<int>("held"); // entries that were not released
    const QStringList away = {"HID device  not find"};
    QTest::newRow("there") << true << true << true << QStringList{"HID device find", "HID open OK"} << 1;
    QTest::newRow("alone") << false << true << true << QStringList{"HID device find", "HID open OK"} << 0;
    QTest::newRow("does not open") << true << true << false << QStringList{"HID device find", "HID open Fail "} << 1;
    QTest::newRow("away") << true << false << true << away << 2;
    QTest::newRow("no device at all") << false << false << true << QStringList() << 0;
}

void TestAccessory::findAndOpen()
{
    QFETCH(bool, others);
    QFETCH(bool, plugged);
    QFETCH(bool, opens);
    QFETCH(QStringList, log);
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
    QCOMPARE(hidFound, plugged);
    QCOMPARE(hidOpened, plugged && opens);
    QCOMPARE(hidHandle != nullptr, plugged && opens);
}

void TestAccessory::foundFlagIsSticky()
{
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // not found yet: not even tried
    QVERIFY(m_desk->takeLog().isEmpty());
    connectDevice();
    accessory().setPlugged(false);
    QVERIFY(Fun_hid_find(kAccessoryVendor, kAccessoryProduct));
    QVERIFY(m_desk->takeLog().isEmpty());
    QVERIFY(!Fun_hid_open(kAccessoryVendor, kAccessoryProduct)); // open already
    QCOMPARE(accessory().handlesOpen(), 1);
}

void TestAccessory::reopenClosesAndForgets()
{
    connectDevice();
    reopenHid(); // the opened flag is still set: closed and nothing else
    QVERIFY(!hidHandle);
    QCOMPARE(accessory().handlesOpen(), 0);
    connectDevice();
    QCOMPARE(accessory().handlesOpen(), 1);
}

void TestAccessory::uploads_data()
{
    QTest::addColumn<bool>("text");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<int>("chunks");
    QTest::addColumn<int>("lastLength"); // bytes of the last report
    QTest::newRow("nothing") << false << qint64(0) << 0 << 5;
    QTest::newRow("one cell") << false << qint64(1) << 1 << 10;
    QTest::newRow("full chunks") << false << qint64(56 * 4) << 4 << 65;
    QTest::newRow("and one") << false << qint64(56 * 4 + 1) << 5 << 10;
    QTest::newRow("a frame") << false << qint64(949) << 17 << 62;
    QTest::newRow("full memory") << false << kAnimationCap << 3254 << 9 + 40;
    QTest::newRow("too much") << false << kAnimationCap + 5000 << 3254 << 9 + 40;
    QTest::newRow("text") << true << qint64(949 * 2) << 34 << 9 + 50;
    QTest::newRow("text, too much") << true << kTextCap + 1 << 13930 << 9 + 54;
}

void TestAccessory::uploads()
{
    QFETCH(bool, text);
    QFETCH(qint64, size);
    QFETCH(int, chunks);
    const QByteArray content = drawn(size);
    writeFile(content);
    connectDevice();
    m_desk->clock.takeWaits();
    const QList<int> reported = upload(text);

    QCOMPARE(m_desk->clock.takeWaits(), QList<int>(text ? 24 : 6, 1000));
    const qint64 sent = std::min(size, text ? kTextCap : kAnimationCap);
    const QStringList expected = {QStringLiteral("File size: %1 bytes").arg(sent),
                                  QStringLiteral("Total chunks: %1").arg(chunks)};
    QCOMPARE(m_desk->takeLog(), expected);
    QCOMPARE(reported.last(), 100);
    QCOMPARE(accessory().protocolFaults(), 0);
    const auto got = accessory().state().upload;
    QCOMPARE(got.mode, text ? 0x2F : 0x24);
    QCOMPARE(got.received, chunks);
    QByteArray cells = content.first(sent);
    cells.replace('0', '\0').replace('1', '\1');
    QCOMPARE(got.cells, cells);
    const auto history = accessory().history();
    QTEST(int(history.back().bytes.size()), "lastLength");
    QCOMPARE(history.size(), std::min<std::size_t>(std::size_t(chunks) + 1, accessory().kHistorySize));
}

void TestAccessory::progressPastHundred()
{
    writeFile(drawn(56 * 100));
    connectDevice();
    const QList<int> expected = {5,  10, 15, 20, 25,  30,  37,  44,  51,  58, 65,
                                 72, 79, 86, 93, 100, 107, 114, 121, 128, 100};
    QCOMPARE(upload(), expected);
    writeFile(drawn(56 * 3)); // too few for tenths: every chunk
    QCOMPARE(upload(), (QList<int>{5, 10, 15, 20, 25, 30, 63, 96, 130, 100}));
}

void TestAccessory::textProgressRunsTwice()
{
    writeFile(drawn(56 * 20));
    connectDevice();
    QList<int> expected;
    for (int percent = 4; percent <= 96; percent += 4)
        expected.append(percent);
    expected += {100, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 100};
    expected.removeAt(expected.indexOf(96) + 1); // the 24th wait makes 96
    expected.insert(24, 100);
    QCOMPARE(upload(true), expected);
}

void TestAccessory::missingFile()
{
    connectDevice();
    for (const bool text : {false, true}) {
        QCOMPARE(upload(text).last(), -1);
        const QStringList log = m_desk->takeLog();
        QCOMPARE(log.size(), 1);
        QVERIFY(log.first().startsWith("Failed to open file: \"No such file"));
    }
    QCOMPARE(accessory().history().size(), 2u); // the announcements only
}

void TestAccessory::fileThatShrinks()
{
    const qint64 size = 56 * 2000;
    writeFile(QByteArray(size, '1'));
    connectDevice();
    const int listener = accessory().addListener([this] {
        if (accessory().state().upload.received == 500)
            QFile::resize(QLatin1String(kDataFile), 0);
    });
    QCOMPARE(upload().last(), 100);
    accessory().removeListener(listener);
    QCOMPARE(accessory().protocolFaults(), 0);
    const QByteArray cells = accessory().state().upload.cells;
    QCOMPARE(cells.size(), size); // as announced
    QVERIFY(cells.startsWith(QByteArray(500 * 56, '\1')));
    QVERIFY(cells.endsWith(QByteArray(500 * 56, '\0')));
}

void TestAccessory::pulledOutAtEveryChunk()
{
    constexpr int kChunks = 17;
    writeFile(drawn(949));
    for (int at = 1; at <= kChunks + 1; ++at) {
        accessory().setPlugged(true);
        connectDevice();
        accessory().clearHistory();
        accessory().unplugAtWrite(at);
        QCOMPARE(upload().last(), 100);
        // A start that failed does not keep the chunks from being tried once.
        QCOMPARE(int(accessory().history().size()), at == 1 ? 2 : at);
        const int errors = int(m_desk->takeLog().count("HID write error."));
        QCOMPARE(errors, at == 1 ? 2 : 1);
        QVERIFY(!accessory().state().upload.isComplete());
    }
    QCOMPARE(accessory().protocolFaults(), 0);
}

void TestAccessory::textEndsWithoutDevice()
{
    writeFile(drawn(56 * 3));
    QCOMPARE(upload().last(), 100);
    QCOMPARE(m_desk->takeLog().count("HID handle is null."), 3); // an animation goes through all chunks
    const QList<int> text = upload(true);
    QCOMPARE(text.size(), 24 + 1 + 1); // the waits, their end, the end
    QVERIFY(!m_desk->takeLog().contains("HID handle is null."));
    QCOMPARE(accessory().history().size(), 0u);
}

void TestAccessory::refusedWriteEndsTheUpload()
{
    writeFile(drawn(56 * 20));
    connectDevice();
    const int listener = accessory().addListener([this] {
        if (accessory().state().upload.received == 4 && !accessory().refusesWrites())
            accessory().refuseWrites(1);
    });
    QCOMPARE(upload(true).last(), 100);
    accessory().removeListener(listener);
    QCOMPARE(m_desk->takeLog().last(), QStringLiteral("HID write error."));
    QCOMPARE(accessory().history().size(), 6u);
}

void TestAccessory::reopenedUnderAnUpload()
{
    writeFile(drawn(kAnimationCap));
    connectDevice();
    std::thread uploader([] { uploadAnimation(QLatin1String(kDataFile), 0x24, [](int) {}); });
    for (int i = 0; i < 200; ++i) { // as if HID devices arrived all the time
        clearHidFlags();
        reopenHid();
    }
    uploader.join();
    QCOMPARE(accessory().handlesOpen(), 1); // and no closed handle was ever written to: see cleanup
}

void TestAccessory::stoppedUploadEndsAtOnce()
{
    writeFile(drawn(56 * 100));
    connectDevice();
    QList<int> reported;
    uploadAnimation(QLatin1String(kDataFile), 0x24, [&reported](int percent) {
        reported.append(percent);
        if (percent == 44)
            stopUploads();
    });
    QCOMPARE(reported.last(), 44);
    QCOMPARE(accessory().history().size(), 1u + 14u);
    reported.clear();
    uploadText(QLatin1String(kDataFile), [&reported](int percent) {
        reported.append(percent);
        stopUploads();
    });
    QCOMPARE(reported, QList<int>{4});
    QCOMPARE(upload().last(), 100); // the next one runs again
}

void TestAccessory::liveFrames_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("chunks");
    QTest::addColumn<int>("last"); // cells of the last one
    QTest::newRow("tapering") << 0 << 17 << 53;
    QTest::newRow("rectangle") << 1 << 19 << 42;
    QTest::newRow("no form") << 2 << 0 << 0;
    QTest::newRow("below") << -1 << 0 << 0;
}

void TestAccessory::liveFrames()
{
    QFETCH(int, form);
    QFETCH(int, chunks);
    QFETCH(int, last);
    const auto cells = patternOf(form);
    accessory().setForm(form);
    connectDevice();
    matrixForm = form;
    sendLiveFrame(cells);
    const auto history = accessory().history();
    QCOMPARE(int(history.size()), chunks);
    if (chunks > 0) {
        QCOMPARE(int(history.back().bytes.size()), last + 9);
        QCOMPARE(accessory().state().liveCells, litOnly(cells));
    }
    sendLiveFrame(patternOf(1 - form)); // built just before the form was changed
    QCOMPARE(int(accessory().history().size()), chunks);
    QCOMPARE(accessory().protocolFaults(), 0);
}

void TestAccessory::liveLatch()
{
    const auto cells = patternOf(kTaperingForm);
    connectDevice();
    accessory().refuseWrites(kForEver);
    for (int i = 0; i < 100; ++i)
        sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), QStringList("HID write error."));
    QCOMPARE(accessory().history().size(), 100u); // the first chunk ends each frame
    accessory().refuseWrites(0);
    sendLiveFrame(cells);
    sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), QStringList("HID write ok."));
    accessory().refuseWrites(1);
    sendLiveFrame(cells);
    sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), (QStringList{"HID write error.", "HID write ok."}));
    closeHid(); // no device: nothing is written, nothing said
    sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), QStringList());
    QCOMPARE(accessory().protocolFaults(), 0);
}

void TestAccessory::deviceRefusesWrongReports_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QString>("fault");
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
    const AccessoryWrite seen = accessory().history().back();
    QTEST(QString::fromLatin1(seen.fault), "fault");
    QCOMPARE(accessory().protocolFaults(), 1);
    QCOMPARE(accessory().state().uploads, 0);
}

QTEST_GUILESS_MAIN(TestAccessory)
#include "tst_accessory.moc"
