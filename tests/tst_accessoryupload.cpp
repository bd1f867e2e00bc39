#include <thread>

#include <QFile>
#include <QtTest>

#include "ledmatrix/matrixform.h"
#include "ledmatrix/matrixframe.h"
#include "support/accessoryfixture.h"
#include "support/textfile.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"

using virtualdesk::kForEver;

namespace {

const QString kDataFile = QStringLiteral("LEDMatrixData.txt");
constexpr qint64 kAnimationCap = 182208;
constexpr qint64 kTextCap = 780078;

/// Every third character of a drawn file is lit.
QByteArray drawn(qint64 size)
{
    QByteArray characters(size, '0');
    for (qsizetype i = 0; i < characters.size(); i += 3)
        characters[i] = '1';
    return characters;
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

/// What is sent to the accessory at length: drawn files, and frames one after the other.
class TestAccessoryUpload : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
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

private:
    QList<int> upload(bool text = false);
};

QList<int> TestAccessoryUpload::upload(bool text)
{
    QList<int> reported;
    const auto progress = [&reported](int percent) { reported.append(percent); };
    if (text)
        uploadText(kDataFile, progress);
    else
        uploadAnimation(kDataFile, 0x24, progress);
    return reported;
}

void TestAccessoryUpload::uploads_data()
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

void TestAccessoryUpload::uploads()
{
    QFETCH(bool, text);
    QFETCH(qint64, size);
    QFETCH(int, chunks);
    const QByteArray content = drawn(size);
    QVERIFY(writeText(kDataFile, content));
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

void TestAccessoryUpload::progressPastHundred()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 100)));
    connectDevice();
    const QList<int> expected = {5,  10, 15, 20, 25,  30,  37,  44,  51,  58, 65,
                                 72, 79, 86, 93, 100, 107, 114, 121, 128, 100};
    QCOMPARE(upload(), expected);
    QVERIFY(writeText(kDataFile, drawn(56 * 3))); // too few for tenths: every chunk
    QCOMPARE(upload(), (QList<int>{5, 10, 15, 20, 25, 30, 63, 96, 130, 100}));
}

void TestAccessoryUpload::textProgressRunsTwice()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 20)));
    connectDevice();
    QList<int> expected;
    for (int percent = 4; percent <= 96; percent += 4)
        expected.append(percent);
    expected += {100, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 100};
    expected.removeAt(expected.indexOf(96) + 1); // the 24th wait makes 96
    expected.insert(24, 100);
    QCOMPARE(upload(true), expected);
}

void TestAccessoryUpload::missingFile()
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

void TestAccessoryUpload::fileThatShrinks()
{
    const qint64 size = 56 * 2000;
    QVERIFY(writeText(kDataFile, QByteArray(size, '1')));
    connectDevice();
    const int listener = accessory().addListener([this] {
        if (accessory().state().upload.received == 500)
            QFile::resize(kDataFile, 0);
    });
    QCOMPARE(upload().last(), 100);
    accessory().removeListener(listener);
    QCOMPARE(accessory().protocolFaults(), 0);
    const QByteArray cells = accessory().state().upload.cells;
    QCOMPARE(cells.size(), size); // as announced
    QVERIFY(cells.startsWith(QByteArray(500 * 56, '\1')));
    QVERIFY(cells.endsWith(QByteArray(500 * 56, '\0')));
}

void TestAccessoryUpload::pulledOutAtEveryChunk()
{
    constexpr int kChunks = 17;
    QVERIFY(writeText(kDataFile, drawn(949)));
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

void TestAccessoryUpload::textEndsWithoutDevice()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 3)));
    QCOMPARE(upload().last(), 100);
    QCOMPARE(m_desk->takeLog().count("HID handle is null."), 3); // an animation goes through all chunks
    const QList<int> text = upload(true);
    QCOMPARE(text.size(), 24 + 1 + 1); // the waits, their end, the end
    QVERIFY(!m_desk->takeLog().contains("HID handle is null."));
    QCOMPARE(accessory().history().size(), 0u);
}

void TestAccessoryUpload::refusedWriteEndsTheUpload()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 20)));
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

void TestAccessoryUpload::reopenedUnderAnUpload()
{
    QVERIFY(writeText(kDataFile, drawn(kAnimationCap)));
    connectDevice();
    std::thread uploader([] { uploadAnimation(kDataFile, 0x24, [](int) {}); });
    for (int i = 0; i < 200; ++i) { // as if HID devices arrived all the time
        clearHidFlags();
        reopenHid();
    }
    uploader.join();
    QCOMPARE(accessory().handlesOpen(), 1); // and no closed handle was ever written to: see cleanup
}

void TestAccessoryUpload::stoppedUploadEndsAtOnce()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 100)));
    connectDevice();
    QList<int> reported;
    uploadAnimation(kDataFile, 0x24, [&reported](int percent) {
        reported.append(percent);
        if (percent == 44)
            stopUploads();
    });
    QCOMPARE(reported.last(), 44);
    QCOMPARE(accessory().history().size(), 1u + 14u);
    reported.clear();
    uploadText(kDataFile, [&reported](int percent) {
        reported.append(percent);
        stopUploads();
    });
    QCOMPARE(reported, QList<int>{4});
    QCOMPARE(upload().last(), 100); // the next one runs again
}

void TestAccessoryUpload::liveFrames_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("chunks");
    QTest::addColumn<int>("last"); // cells of the last one
    QTest::newRow("tapering") << 0 << 17 << 53;
    QTest::newRow("rectangle") << 1 << 19 << 42;
    QTest::newRow("no form") << 2 << 0 << 0;
    QTest::newRow("below") << -1 << 0 << 0;
}

void TestAccessoryUpload::liveFrames()
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

void TestAccessoryUpload::liveLatch()
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

QTEST_GUILESS_MAIN(TestAccessoryUpload)
#include "tst_accessoryupload.moc"
