#include <unistd.h>

#include <atomic>
#include <thread>

#include <QtTest>
#include <QtWidgets>

#include "support/accessoryfixture.h"
#include "support/answeredcanvas.h"
#include "support/fulldisk.h"
#include "usb-hid/accessoryupload.h"

namespace {

constexpr const char *kDataFile = pageLEDMatrixCanvas::kDataFile;
const QString kKept = QStringLiteral("LEDMatrixMode5.txt");   // what the last memory has
const QByteArray kTaperingFrame = QByteArray(948, '0') + "1"; // a frame

} // namespace

/// What the canvas page saves, exports, imports and uploads, and what becomes of it when that fails.
class TestCanvasFiles : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void importRules();
    void realDialogs();
    void exportInTabOrder();
    void progress();
    void fullDiskKeepsTheOldFile();
    void faultsLeaveThePageUsable_data();
    void faultsLeaveThePageUsable();
    void savedFlag();
    void upload_data();
    void upload();
    void cancelledUpload();
    void cancelledFiles();
    void timeLeft();

private:
    int holdUploadAt(int chunks, std::atomic<bool> &held);
};

void TestCanvasFiles::importRules()
{
    const QByteArray frame = QByteArray("1") + QByteArray(1048, '0') + QByteArray("1");
    for (const auto &[form, content, aligned, frames, litInFirst] :
         {std::tuple(1, frame.first(1049), false, 0, 0),
          {1, frame, false, 1, 2},
          {1, frame + frame.first(1049), false, 1, 2},
          {0, frame.repeated(2), false, 2, 1},            // steps of 1050 for the tapering form too
          {0, kTaperingFrame.repeated(20), false, 18, 1}, // shifted on purpose
          {0, kTaperingFrame.repeated(20), true, 20, 1},
          {1, frame.repeated(193), false, 192, 2}, // more than the maximum
          {1, QByteArray(1'000'000, '1'), false, 192, 1050},
          {1, QByteArray(1050, '\xff').replace(5, 2, "1\0", 2), false, 1, 1}}) { // anything but 1 is dark
        const auto page = makePage(form);
        page->addFrame();
        QVERIFY(writeText(QStringLiteral("in.csv"), content));
        page->fileName = QStringLiteral("in.csv");
        QVERIFY(finish(*page, aligned ? &AnsweredCanvas::importAligned : &AnsweredCanvas::importAnimate));
        QCOMPARE(page->tabs()->count(), frames); // those that were there are gone in any case
        QCOMPARE(page->frameCounter(), frames);
        if (frames > 0) {
            QCOMPARE(litCells(*page->tabs()->editor(0)), litInFirst);
            QCOMPARE(page->tabs()->tabText(0), QStringLiteral("1"));
        }
        QVERIFY(m_desk->takeLog().contains(QStringLiteral("Frame size: %1").arg(frames)));
        if (content.startsWith(kTaperingFrame))
            QCOMPARE(page->tabs()->digits().count(kTaperingFrame), aligned ? 20 : 1);
        QCOMPARE(page->work()->notice().isEmpty(),
                 frames > 0 && content.size() < 193 * 1050); // what is left out is told
        QCOMPARE(page->busyEvents, (QList<int>{1, 0}));
        page->undo();
        QCOMPARE(page->tabs()->count(), 2);
    }
}

/// The real dialogs and boxes, which the other tests answer themselves.
void TestCanvasFiles::realDialogs()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    pageLEDMatrixCanvas page([] { return true; });
    page.show();
    QStringList seen;
    const auto answer = [&seen](const QString &fileName) { // the dialog; without a name the box that follows as well
        QTimer::singleShot(0, [&seen, fileName] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            seen += {dialog->windowTitle(), dialog->nameFilters().join(QLatin1Char('|'))};
            QTimer::singleShot(0, [&seen] {
                if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    seen += {box->windowTitle(), box->text(), box->buttons().first()->text()};
                    box->buttons().first()->click();
                }
            });
            if (fileName.isEmpty())
                return dialog->reject();
            dialog->selectFile(fileName);
            static_cast<QDialog *>(dialog)->accept();
        });
    };
    answer({});
    page.exportAnimate();
    QVERIFY(page.dataFile().isEmpty() && !page.isBusy());
    const QStringList cancelled = {"CSV file (*.csv);", "Warning", "No file path selected.", "OK"};
    QCOMPARE(seen, QStringList{"Save File"} + cancelled);
    seen.clear();
    answer({});
    page.importAnimate();
    QCOMPARE(seen, QStringList{"Select File"} + cancelled);
    answer(QStringLiteral("night"));
    page.exportAnimate();
    QTRY_VERIFY(!page.isBusy());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{"night.csv"});
}

void TestCanvasFiles::exportInTabOrder()
{
    const auto page = makePage(1);
    draw(*page, 0);
    page->duplicateFrame();
    draw(*page, 1);
    page->fileName = QStringLiteral("out.csv");
    QVERIFY(writeText(page->fileName, "what was there before"));
    page->exportAnimate();
    QVERIFY(!page->button("Add Frame")->isEnabled());
    for (const auto press : {&AnsweredCanvas::addFrame, &AnsweredCanvas::duplicateFrame, &AnsweredCanvas::deleteFrame,
                             &AnsweredCanvas::cleanFrame, &AnsweredCanvas::undo, &AnsweredCanvas::exportAnimate,
                             &AnsweredCanvas::importAnimate, &AnsweredCanvas::writeAnimate})
        (page.get()->*press)(); // nothing is done before the work has ended
    QTRY_VERIFY(!page->isBusy());
    QCOMPARE(page->tabs()->count(), 2);
    QVERIFY(page->warnings.isEmpty());
    QCOMPARE(readText(page->fileName), "10" + QByteArray(1048, '0') + "11" + QByteArray(1048, '0'));
    QCOMPARE(page->dataFile(), page->fileName);
    QCOMPARE(page->work()->progressBar()->value(), 100);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{"out.csv"});
    QVERIFY(!page->button("Write Animate")->isEnabled()); // exported is not saved
}

void TestCanvasFiles::progress()
{
    const auto page = makePage();
    LEDThread thread(&pageLEDMatrixCanvas::sendAnmateData);
    QList<int> values;
    connect(&thread, &LEDThread::progress, this, [&values](int value) { values.append(value); });
    for (const int frames : {0, 3, 25}) { // none, each of a few, every second
        thread.begin(LEDThread::Export, {QByteArrayList(frames, QByteArray(949, '0')), QStringLiteral("out.csv")});
        thread.wait();
        QCoreApplication::processEvents();
    }
    QCOMPARE(values, (QList<int>{100, 33, 66, 100, 100, 8, 16, 24, 32, 40, 48, 56, 64, 72, 80, 88, 96, 100}));
    values.clear();
    connect(page->work()->progressBar(), &QProgressBar::valueChanged, this,
            [&values](int value) { values.append(value); });
    while (page->frameCounter() < 24)
        page->addFrame();
    page->fileName = QStringLiteral("out.csv");
    QVERIFY(writeText(page->fileName, QByteArray(1050, '1'))); // every second of 24 tabs that go, of a sum of 25
    QVERIFY(finish(*page, &AnsweredCanvas::importAnimate));
    QCOMPARE(values, (QList<int>{0, 8, 16, 24, 32, 40, 48, 56, 64, 72, 80, 88, 96, 100}));
}

void TestCanvasFiles::fullDiskKeepsTheOldFile()
{
    const auto page = makePage();
    page->addFrame();
    QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    const QByteArray before = readText(QLatin1String(kDataFile));
    draw(*page, 2);
    {
        const FullDisk full(1000); // the second frame finds no room
        QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    }
    QCOMPARE(readText(QLatin1String(kDataFile)), before);
    QCOMPARE(QDir().entryList(QDir::Files).count(), 1);
    QCOMPARE(page->work()->progressBar()->value(), -1);
    QVERIFY(page->work()->notice().startsWith(QStringLiteral("The file cannot be written")));
    QVERIFY(!page->button("Write Animate")->isEnabled() && page->dataFile() == QLatin1String(kDataFile));
    QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    QVERIFY(readText(QLatin1String(kDataFile)) != before);
    QVERIFY(page->button("Write Animate")->isEnabled());
    QVERIFY(page->work()->notice().isEmpty());
}

void TestCanvasFiles::faultsLeaveThePageUsable_data()
{
    columns<QString, bool>("fileName", "imports");
    QTest::newRow("export into a folder that is not there") << "missing/out.csv" << false;
    QTest::newRow("export onto a folder") << "folder" << false;
    QTest::newRow("export onto a file that may not be written") << "readonly.csv" << false;
    QTest::newRow("import of a file that is not there") << "missing.csv" << true;
    QTest::newRow("import of a folder") << "folder" << true;
}

void TestCanvasFiles::faultsLeaveThePageUsable()
{
    const auto [fileName, imports] = fetch<QString, bool>();
    QDir().mkdir(QStringLiteral("folder"));
    if (fileName == QStringLiteral("readonly.csv")) {
        if (geteuid() == 0)
            QSKIP("everything may be written by this user");
        QVERIFY(writeText(fileName, "kept") && QFile::setPermissions(fileName, QFile::ReadOwner));
    }
    const auto page = makePage();
    draw(*page, 4);
    QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    page->fileName = fileName;
    QVERIFY(finish(*page, imports ? &AnsweredCanvas::importAnimate : &AnsweredCanvas::exportAnimate));
    QCOMPARE(page->work()->progressBar()->value(), -1);
    QVERIFY(!page->work()->notice().isEmpty());
    QVERIFY(m_desk->takeLog().join(QLatin1Char(' ')).contains(QStringLiteral("Failed to open file:")));
    QCOMPARE(litCells(*page->tabs()->editor(0)), 1);
    QVERIFY(page->button("Add Frame")->isEnabled() && page->tabs()->isEnabled());
    QCOMPARE(page->dataFile(), QLatin1String(kDataFile)); // nothing came of the other one
    QCOMPARE(page->busyEvents, (QList<int>{1, 0, 1, 0}));
}

void TestCanvasFiles::savedFlag()
{
    const auto page = makePage();
    const auto save = [&] {
        return finish(*page, &AnsweredCanvas::saveAnimate) && page->button("Write Animate")->isEnabled();
    };
    QVERIFY(!page->button("Write Animate")->isEnabled());
    QVERIFY(save());
    draw(*page, 0);
    QVERIFY(!page->button("Write Animate")->isEnabled());
    QVERIFY(save());
    page->fileName = QStringLiteral("in.csv"); // an import leaves the mark as it is, and is what is written then
    QVERIFY(writeText(page->fileName, QByteArray(1051, '1')));
    QVERIFY(finish(*page, &AnsweredCanvas::importAnimate));
    QVERIFY(page->button("Write Animate")->isEnabled());
    connectDevice();
    QVERIFY(finish(*page, &AnsweredCanvas::writeAnimate));
    QCOMPARE(accessory().state().upload.cells, QByteArray(1051, '\1'));
    page->undo();
    QVERIFY(!page->button("Write Animate")->isEnabled());
    QVERIFY(finish(*page, &AnsweredCanvas::importAnimate));
    QVERIFY(!page->button("Write Animate")->isEnabled());
    page->deleteFrame();
    QVERIFY(!save()); // there is nothing to send
    page->fileName = QStringLiteral("empty.csv");
    QVERIFY(writeText(page->fileName, {}));
    page->addFrame();
    page->importAnimate(); // and here nothing to take
    QCOMPARE(page->warnings, QStringList{"File is null."});
    QVERIFY(!page->isBusy());
    QCOMPARE(page->tabs()->count(), 1);
}

void TestCanvasFiles::upload_data()
{
    columns<bool, bool, int, int, QString>("connected", "fileGoes", "pulledAt", "shown", "notice"); // at a write
    const QString cut = QStringLiteral("The accessory did not take everything.");
    QTest::newRow("whole") << true << false << 0 << 100 << QString();
    QTest::newRow("without accessory") << false << false << 0 << 100 << QString();
    QTest::newRow("the file is gone") << true << true << 0 << -1 << QStringLiteral("The file cannot be read");
    QTest::newRow("pulled out at the start") << true << false << 1 << 100 << cut;
    QTest::newRow("pulled out at the last chunk") << true << false << 425 << 100 << cut;
}

void TestCanvasFiles::upload()
{
    const auto [connected, fileGoes, pulledAt, shown, notice] = fetch<bool, bool, int, int, QString>();
    connectDevice();
    const auto page = makePage();
    page->findChild<QComboBox *>()->setCurrentIndex(4);
    QVERIFY(writeText(kKept, "what was in it before"));
    for (int i = 0; i < 24; ++i) // 425 chunks: its progress passes 100 on its way
        page->addFrame();
    QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    m_desk->clock.takeWaits();
    if (fileGoes)
        QFile::remove(QLatin1String(kDataFile));
    page->connected = connected;
    accessory().unplugAtWrite(pulledAt);
    const QByteArrayList before = page->tabs()->digits();
    QVERIFY(finish(*page, &AnsweredCanvas::writeAnimate));
    QCOMPARE(page->tabs()->digits(), before);
    QCOMPARE(page->work()->progressBar()->value(), shown);
    QVERIFY(notice.isEmpty() ? page->work()->notice().isEmpty() : page->work()->notice().startsWith(notice));
    QCOMPARE(m_desk->clock.takeWaits().count(), connected ? 6 : 0);
    const virtualdesk::AccessoryUpload upload = accessory().state().upload;
    QCOMPARE(upload.isComplete(), connected && !fileGoes && pulledAt == 0);
    QCOMPARE(int(upload.mode), connected && pulledAt != 1 ? 0x28 : 0);
    QVERIFY(page->button("Write Animate")->isEnabled());
    QCOMPARE(page->busyEvents.count(), connected ? 4 : 2);
    QCOMPARE(QFile::exists(kKept), upload.isComplete() || !connected); // nobody knows what is in it now
    if (upload.isComplete())
        QCOMPARE(readText(kKept), before.join());
}

/// Lets no chunk through from then on until the upload is cancelled. The listener, which is to be taken away.
int TestCanvasFiles::holdUploadAt(int chunks, std::atomic<bool> &held)
{
    return accessory().addListener([this, chunks, &held, stop = uploadStop()] {
        if (accessory().state().upload.received != chunks || stop.stop_requested())
            return;
        held = true;
        for (const QDeadlineTimer patience(10000); !stop.stop_requested() && !patience.hasExpired();)
            std::this_thread::yield();
    });
}

void TestCanvasFiles::cancelledUpload()
{
    for (const int heldAt : {0, 3, 17}) { // chunks that are out when Cancel is pressed: none, some, and all
        const bool complete = heldAt == 17;
        connectDevice();
        const auto page = makePage();
        QPushButton other(page.get());
        other.show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
        QPushButton *write = page->button("Write Animate");
        write->setFocus();
        std::atomic<bool> held = false;
        const int listener = holdUploadAt(heldAt, held);
        page->writeAnimate();
        QTRY_VERIFY(held);
        QCOMPARE(page->focusWidget(), page->work()->cancelButton());
        if (heldAt == 0)
            QCOMPARE(page->work()->timeText(), QStringLiteral("7 s left"));
        page->updateControlText(); // another language meanwhile, and another form
        useForm(heldAt == 3);
        page->updateInterfaceData();
        if (complete)
            other.setFocus(); // the user goes elsewhere
        QTest::keyClick(page->work()->cancelButton(), Qt::Key_Space);
        QTRY_VERIFY(!page->isBusy());
        accessory().removeListener(listener);
        QCOMPARE(accessory().state().upload.isComplete(), complete);
        QCOMPARE(page->work()->notice().isEmpty(), complete);
        QCOMPARE(page->work()->progressBar()->isVisible(), complete);
        QCOMPARE(page->busyEvents, (QList<int>{1, 0, 1, 0}));
        QCOMPARE(page->tabs()->digits().first().size(), accessoryLink.form.load()->cells()); // which is followed now
        if (heldAt != 3) // where there is nothing saved to write
            QCOMPARE(page->focusWidget(), complete ? &other : write);
        cleanup();
        init();
    }
}

void TestCanvasFiles::cancelledFiles()
{
    const auto page = makePage();
    draw(*page, 1);
    QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate));
    page->fileName = QStringLiteral("in.csv");
    QVERIFY(writeText(page->fileName, QByteArray(2100, '1')));
    page->importAnimate();
    page->work()->cancelButton()->click();
    QTRY_VERIFY(!page->isBusy());
    QCOMPARE(page->tabs()->count(), 1);
    QVERIFY(!page->work()->notice().isEmpty());
    QCOMPARE(page->dataFile(), QLatin1String(kDataFile));
    LEDThread thread(&pageLEDMatrixCanvas::sendAnmateData);
    const auto interrupt = [&thread] { thread.requestInterruption(); };
    connect(&thread, &LEDThread::progress, &thread, interrupt, Qt::DirectConnection); // after the first frame
    thread.begin(LEDThread::Export, {{"1", "0"}, page->fileName});
    thread.wait();
    QCOMPARE(readText(page->fileName).size(), 2100);
}

void TestCanvasFiles::timeLeft()
{
    using std::chrono::milliseconds;
    const WorkStep steps[] = {{"", 0, 30, milliseconds(6000)}, {"", 30, 130, milliseconds(1000)}};
    for (const auto &[step, progress, gone, left] :
         {std::tuple{0, 0, 500, 6500}, {0, 10, 2000, 5000}, {0, 0, 9000, 1000}, {1, 80, 4000, 4000}, {1, 130, 8000, 0}})
        QCOMPARE(::timeLeft(steps, std::size_t(step), progress, milliseconds(gone)).count(), left);
}

QTEST_MAIN(TestCanvasFiles)
#include "tst_canvasfiles.moc"
