#include <thread>

#include <QtTest>

#include "ledmatrix/matrixframe.h"
#include "support/accessoryfixture.h"
#include "support/matrixforms.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"
#include "virtualdesk/accessoryforms.h"

using virtualdesk::kForEver;

namespace {

const QString kDataFile = QStringLiteral("LEDMatrixData.txt");
constexpr qint64 kTextCap = 780078;

/// Every third character of a drawn file is lit.
QByteArray drawn(qint64 size)
{
    return QByteArray("100").repeated(size / 3 + 1).first(size);
}

std::vector<std::int32_t> patternOf(const MatrixForm &form)
{
    std::vector<std::int32_t> cells(static_cast<std::size_t>(form.cells()));
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i] = i % 5 == 0 ? 1 : i % 7 == 0 ? 2 : 0; // 2 is no lit cell
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
    void progress();
    void fileThatShrinks();
    void pulledOutAtEveryChunk();
    void nothingToSendOrNobody();
    void reopenedUnderAnUpload();
    void stoppedUploadEndsAtOnce();
    void liveFrames();
    void formsAgree();
    void liveLatch();

private:
    QList<int> upload(bool text = false);

    bool m_complete = false; ///< what the last upload said
};

QList<int> TestAccessoryUpload::upload(bool text)
{
    QList<int> reported;
    const auto progress = [&reported](int percent) { reported.append(percent); };
    m_complete = text ? uploadText(kDataFile, progress) : uploadAnimation(kDataFile, 0x24, progress);
    return reported;
}

void TestAccessoryUpload::uploads_data()
{
    columns<bool, qint64, int>("text", "size", "chunks");
    QTest::newRow("nothing") << false << qint64(0) << 0;
    QTest::newRow("one cell") << false << qint64(1) << 1;
    QTest::newRow("full chunks") << false << qint64(56 * 4) << 4;
    QTest::newRow("and one") << false << qint64(56 * 4 + 1) << 5;
    QTest::newRow("full memory") << false << kAnimationCap << 3254;
    QTest::newRow("too much") << false << kAnimationCap + 5000 << 3254;
    QTest::newRow("text") << true << qint64(949 * 2) << 34;
    QTest::newRow("text, too much") << true << kTextCap + 1 << 13930;
}

void TestAccessoryUpload::uploads()
{
    const auto [text, size, chunks] = fetch<bool, qint64, int>();
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
    QVERIFY(m_complete);
    const auto got = accessory().state().upload;
    QCOMPARE(got.mode, text ? 0x2F : 0x24);
    QCOMPARE(got.received, chunks);
    QByteArray cells = content.first(sent);
    cells.replace('0', '\0').replace('1', '\1');
    QCOMPARE(got.cells, cells);
    QCOMPARE(accessory().history().size(), std::min<std::size_t>(std::size_t(chunks) + 1, accessory().kHistorySize));
}

void TestAccessoryUpload::progress()
{
    QVERIFY(writeText(kDataFile, drawn(56 * 100)));
    connectDevice();
    const QList<int> pastHundred = {5,  10, 15, 20, 25,  30,  37,  44,  51,  58, 65,
                                    72, 79, 86, 93, 100, 107, 114, 121, 128, 100};
    QCOMPARE(upload(), pastHundred);
    QVERIFY(writeText(kDataFile, drawn(56 * 3))); // too few for tenths: every chunk
    QCOMPARE(upload(), (QList<int>{5, 10, 15, 20, 25, 30, 63, 96, 130, 100}));
    QVERIFY(writeText(kDataFile, drawn(56 * 20)));
    QList<int> twice; // a text's runs up for the waits, then for the chunks
    for (int percent = 4; percent <= 96; percent += 4)
        twice.append(percent);
    twice += {100, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 100};
    QCOMPARE(upload(true), twice);
}

void TestAccessoryUpload::fileThatShrinks()
{
    const qint64 size = 56 * 2000;
    connectDevice();
    for (const bool removed : {false, true}) {
        QVERIFY(writeText(kDataFile, QByteArray(size, '1')));
        const int listener = accessory().addListener([this, removed] {
            if (accessory().state().upload.received == 500)
                removed ? QFile::remove(kDataFile) : QFile::resize(kDataFile, 0);
        });
        QCOMPARE(upload().last(), 100);
        accessory().removeListener(listener);
        const QByteArray cells = accessory().state().upload.cells;
        QCOMPARE(cells.size(), size); // as announced
        QVERIFY(cells.startsWith(QByteArray(500 * 56, '\1')));
        QVERIFY(cells.endsWith(QByteArray(500 * 56, removed ? '\1' : '\0'))); // what is open can be read to its end
    }
}

void TestAccessoryUpload::pulledOutAtEveryChunk()
{
    constexpr int kChunks = 17;
    QVERIFY(writeText(kDataFile, drawn(949)));
    for (int i = 0; i < 2 * (kChunks + 1); ++i) {
        const int at = 1 + i / 2;
        accessory().setPlugged(true);
        connectDevice();
        accessory().clearHistory();
        accessory().unplugAtWrite(at);
        QCOMPARE(upload(i % 2 == 1).last(), 100);
        QVERIFY(!m_complete);
        // A start that failed does not keep the chunks from being tried once.
        QCOMPARE(int(accessory().history().size()), at == 1 ? 2 : at);
        const int errors = int(m_desk->takeLog().count("HID write error."));
        QCOMPARE(errors, at == 1 ? 2 : 1);
        QVERIFY(!accessory().state().upload.isComplete());
    }
}

void TestAccessoryUpload::nothingToSendOrNobody()
{
    connectDevice();
    for (const bool text : {false, true}) {
        QCOMPARE(upload(text).last(), -1);
        const QStringList log = m_desk->takeLog();
        QCOMPARE(log.size(), 1);
        QVERIFY(log.first().startsWith("Failed to open file: \"No such file"));
    }
    closeHid();
    QVERIFY(writeText(kDataFile, drawn(56 * 3)));
    QCOMPARE(upload().last(), 100);
    QCOMPARE(m_desk->takeLog().count("HID handle is null."), 3); // an animation goes through all chunks
    QCOMPARE(upload(true).size(), 24 + 1 + 1);                   // the waits, their end, the end
    QVERIFY(!m_desk->takeLog().contains("HID handle is null."));
    QCOMPARE(accessory().history().size(), 2u); // the announcements of the missing file only
}

void TestAccessoryUpload::reopenedUnderAnUpload()
{
    QVERIFY(writeText(kDataFile, drawn(kAnimationCap)));
    connectDevice();
    std::atomic<bool> ended = false;
    std::thread uploader([this, &ended] {
        upload();
        ended = true;
    });
    while (!ended) { // as if HID devices arrived all the time
        clearHidFlags();
        reopenHid();
    }
    uploader.join();
    QVERIFY(m_complete); // none found the handle closed
    QCOMPARE(accessory().state().upload.received, 3254);
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
    const std::stop_token asked = uploadStop(); // its thread comes to it too late
    stopUploads();
    QVERIFY(!uploadText(
        kDataFile, [&reported](int percent) { reported.append(percent); }, asked));
    QCOMPARE(reported.size(), 1);
    QCOMPARE(accessory().state().uploads, 2); // the device forgets nothing for it
    QCOMPARE(upload().last(), 100);           // the next one runs again
}

void TestAccessoryUpload::liveFrames()
{
    connectDevice();
    AccessoryReport start;
    buildUploadStart(start, 0x24);
    for (const MatrixForm &form : matrixForms()) {
        const int chunks = chunkCount(form.cells());
        auto cells = patternOf(form);
        accessory().setForm(form.number);
        accessory().clearHistory();
        accessoryLink.form = &form;
        sendLiveFrame(cells);
        QCOMPARE(int(accessory().history().size()), chunks);
        std::replace(cells.begin(), cells.end(), 2, 0);
        QVERIFY(accessory().state().liveCells == cells);
        QVERIFY(accessory().state().showsLive);
        for (const MatrixForm &other : matrixForms()) {
            accessoryLink.form = nullptr; // then nothing goes out
            sendLiveFrame(patternOf(other));
            accessoryLink.form = &form; // a frame was built just before the form was changed
            if (&other != &form)
                sendLiveFrame(patternOf(other));
        }
        QCOMPARE(int(accessory().history().size()), chunks);
        QCOMPARE(writeHid(start), HidWrite::Done);
        QVERIFY(!accessory().state().showsLive); // the upload is what it shows from now on
    }
}

/// The program and the device that it is watched by know the same forms, each by a table of its own.
void TestAccessoryUpload::formsAgree()
{
    using namespace virtualdesk;
    std::vector<int> numbers = knownForms();
    for (const MatrixForm &form : ::matrixForms())
        numbers.push_back(form.number);
    for (const int number : numbers) {
        const MatrixForm *form = findMatrixForm(number);
        const auto &rows = virtualdesk::matrixRows(number);
        QVERIFY2(form && !rows.empty(),
                 qPrintable(
                     QStringLiteral("form %1 is unknown to %2").arg(number).arg(form ? "the device" : "the program")));
        QCOMPARE(form->rows.size(), rows.size());
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const auto &[cells, first, shift] = form->rows[row];
            QVERIFY2(cells == rows[row].cells && first == rows[row].first && shift == matrixRowShift(number, int(row)),
                     qPrintable(QStringLiteral("%1, row %2").arg(form->label).arg(row)));
        }
    }
}

void TestAccessoryUpload::liveLatch()
{
    const auto cells = patternOf(kTapering);
    connectDevice();
    accessory().refuseWrites(kForEver);
    for (int i = 0; i < 100; ++i)
        sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), QStringList("HID write error."));
    QCOMPARE(accessory().history().size(), 100u); // the first chunk ends each frame
    for (const int refused : {0, 1}) {
        accessory().refuseWrites(refused);
        sendLiveFrame(cells);
        sendLiveFrame(cells);
        QCOMPARE(m_desk->takeLog(), (QStringList{"HID write error.", "HID write ok."}).last(1 + refused));
    }
    closeHid(); // no device: nothing is written, nothing said
    sendLiveFrame(cells);
    QCOMPARE(m_desk->takeLog(), QStringList());
}

QTEST_GUILESS_MAIN(TestAccessoryUpload)
#include "tst_accessoryupload.moc"
