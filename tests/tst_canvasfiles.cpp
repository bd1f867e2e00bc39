#include <sys/resource.h>

#include <csignal>

#include <QComboBox>
#include <QFile>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

#include "support/answeredcanvas.h"
#include "support/deskfixture.h"
#include "support/textfile.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr char kDataFile[] = "./LEDMatrixData.txt";

/// The first byte beyond which files cannot grow, as on a full disk, for as long as it lives.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
};

} // namespace

/// What the canvas page saves, exports, imports and uploads, and what becomes of it when that fails.
class TestCanvasFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_desk = std::make_unique<DeskFixture>(); }
    void cleanup() { m_desk.reset(); }
    void importRules_data();
    void importRules();
    void exportInTabOrder();
    void exportProgress_data();
    void exportProgress();
    void fullDiskKeepsTheOldFile();
    void faultsLeaveThePageUsable_data();
    void faultsLeaveThePageUsable();
    void dialogFailures();
    void savedFlag();
    void upload_data();
    void upload();

private:
    std::unique_ptr<DeskFixture> m_desk;
};

void TestCanvasFiles::importRules_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("litInFirst");
    const QByteArray frame = QByteArray("1") + QByteArray(1048, '0') + QByteArray("1");
    QTest::newRow("too short for a frame") << 1 << frame.first(1049) << 0 << 0;
    QTest::newRow("one frame") << 1 << frame << 1 << 2;
    QTest::newRow("a frame and a piece") << 1 << frame + frame.first(1049) << 1 << 2;
    QTest::newRow("steps of 1050 for the tapering form too") << 0 << frame.repeated(2) << 2 << 1;
    QTest::newRow("more than the maximum") << 1 << frame.repeated(193) << 192 << 2;
    QTest::newRow("a million bytes") << 1 << QByteArray(1'000'000, '1') << 192 << 1050;
    QTest::newRow("anything but 1 is dark") << 1 << QByteArray(1050, '\xff').replace(5, 2, "1\0", 2) << 1 << 1;
}

void TestCanvasFiles::importRules()
{
    QFETCH(int, form);
    QFETCH(QByteArray, content);
    QFETCH(int, frames);
    const auto page = makePage(form);
    page->addFrame();
    QVERIFY(writeText(QStringLiteral("in.csv"), content));
    page->fileName = QStringLiteral("in.csv");
    page->importAnimate();
    QVERIFY(finish(*page));
    QCOMPARE(page->tabs()->count(), frames); // those that were there are gone in any case
    QCOMPARE(page->frameCounter(), frames);
    if (frames > 0) {
        QTEST(litCells(*page->tabs()->editor(0)), "litInFirst");
        QCOMPARE(page->tabs()->tabText(0), QStringLiteral("1"));
    }
    QVERIFY(m_desk->takeLog().contains(QStringLiteral("Frame size: %1").arg(frames)));
    QCOMPARE(page->notice().isEmpty(), frames > 0);
    QCOMPARE(page->busyEvents, (QList<int>{1, 0}));
    page->undo();
    QCOMPARE(page->tabs()->count(), 2);
}

void TestCanvasFiles::exportInTabOrder()
{
    const auto page = makePage(kRectangleForm);
    draw(*page, 0);
    page->duplicateFrame();
    draw(*page, 1);
    page->fileName = QStringLiteral("out.csv");
    QVERIFY(writeText(page->fileName, "what was there before"));
    page->exportAnimate();
    QVERIFY(!page->button("Add Frame")->isEnabled());
    QVERIFY(finish(*page));
    QCOMPARE(readText(page->fileName), "10" + QByteArray(1048, '0') + "11" + QByteArray(1048, '0'));
    QCOMPARE(page->dataFile(), page->fileName);
    QCOMPARE(page->progressBar()->value(), 100);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{"out.csv"});
    QVERIFY(!page->button("Write Animate")->isEnabled()); // exported is not saved
}

void TestCanvasFiles::exportProgress_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("none") << 0 << QList<int>{100};
    QTest::newRow("each of a few") << 3 << QList<int>{33, 66, 100, 100};
    QTest::newRow("every second") << 25 << QList<int>{8, 16, 24, 32, 40, 48, 56, 64, 72, 80, 88, 96, 100};
}

void TestCanvasFiles::exportProgress()
{
    QFETCH(int, frames);
    const auto page = makePage();
    LEDThread thread(*page);
    QList<int> values;
    connect(&thread, &LEDThread::progress, this, [&values](int value) { values.append(value); });
    thread.begin(LEDThread::Export, {QByteArrayList(frames, QByteArray(949, '0')), QStringLiteral("out.csv")});
    thread.wait();
    QCoreApplication::processEvents();
    QTEST(values, "values");
}

void TestCanvasFiles::fullDiskKeepsTheOldFile()
{
    const auto page = makePage();
    page->addFrame();
    page->saveAnimate();
    QVERIFY(finish(*page));
    const QByteArray before = readText(QLatin1String(kDataFile));
    draw(*page, 2);
    {
        const FullDisk full(1000); // the second frame finds no room
        page->saveAnimate();
        QVERIFY(finish(*page));
    }
    QCOMPARE(readText(QLatin1String(kDataFile)), before);
    QCOMPARE(QDir().entryList(QDir::Files).count(), 1);
    QCOMPARE(page->progressBar()->value(), -1);
    QVERIFY(page->notice().startsWith(QStringLiteral("The file cannot be written")));
    QVERIFY(!page->button("Write Animate")->isEnabled());
    page->saveAnimate();
    QVERIFY(finish(*page));
    QVERIFY(readText(QLatin1String(kDataFile)) != before);
    QVERIFY(page->button("Write Animate")->isEnabled());
    QVERIFY(page->notice().isEmpty());
}

void TestCanvasFiles::faultsLeaveThePageUsable_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("imports");
    QTest::newRow("export into a folder that is not there") << "missing/out.csv" << false;
    QTest::newRow("export onto a folder") << "folder" << false;
    QTest::newRow("import of a file that is not there") << "missing.csv" << true;
    QTest::newRow("import of a folder") << "folder" << true;
}

void TestCanvasFiles::faultsLeaveThePageUsable()
{
    QFETCH(bool, imports);
    QFETCH(QString, fileName);
    QDir().mkdir(QStringLiteral("folder"));
    const auto page = makePage();
    draw(*page, 4);
    page->saveAnimate();
    QVERIFY(finish(*page));
    page->fileName = fileName;
    if (imports)
        page->importAnimate();
    else
        page->exportAnimate();
    QVERIFY(finish(*page));
    QCOMPARE(page->progressBar()->value(), -1);
    QVERIFY(!page->notice().isEmpty());
    QVERIFY(m_desk->takeLog().join(QLatin1Char(' ')).contains(QStringLiteral("Failed to open file:")));
    QCOMPARE(litCells(*page->tabs()->editor(0)), 1);
    QVERIFY(page->button("Add Frame")->isEnabled() && page->tabs()->isEnabled());
    QVERIFY(!page->button("Write Animate")->isEnabled()); // it would send that file
    QCOMPARE(page->busyEvents, (QList<int>{1, 0, 1, 0}));
}

void TestCanvasFiles::dialogFailures()
{
    const auto page = makePage();
    page->exportAnimate();
    page->importAnimate();
    page->fileName = QStringLiteral("empty.csv");
    QVERIFY(writeText(page->fileName, {}));
    page->importAnimate();
    QCOMPARE(page->warnings, (QStringList{"No file path selected.", "No file path selected.", "File is null."}));
    QVERIFY(page->dataFile().isEmpty() && page->busyEvents.isEmpty());
    QCOMPARE(page->tabs()->count(), 1);
}

void TestCanvasFiles::savedFlag()
{
    const auto page = makePage();
    const auto save = [&] {
        page->saveAnimate();
        return finish(*page) && page->button("Write Animate")->isEnabled();
    };
    QVERIFY(!page->button("Write Animate")->isEnabled());
    QVERIFY(save());
    draw(*page, 0);
    QVERIFY(!page->button("Write Animate")->isEnabled());
    QVERIFY(save());
    page->undo();
    QVERIFY(!page->button("Write Animate")->isEnabled());
    page->deleteFrame();
    QVERIFY(!save()); // there is nothing to send
}

void TestCanvasFiles::upload_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("fileGoes");
    QTest::addColumn<int>("shown");
    QTest::newRow("whole") << true << false << 100;
    QTest::newRow("without accessory") << false << false << 100;
    QTest::newRow("the file is gone") << true << true << -1;
}

void TestCanvasFiles::upload()
{
    QFETCH(bool, connected);
    QFETCH(bool, fileGoes);
    reopenHid();
    const auto page = makePage();
    page->findChild<QComboBox *>()->setCurrentIndex(4);
    for (int i = 0; i < 24; ++i) // 425 chunks: its progress passes 100 on its way
        page->addFrame();
    page->saveAnimate();
    QVERIFY(finish(*page));
    m_desk->clock.takeWaits();
    if (fileGoes)
        QFile::remove(QLatin1String(kDataFile));
    page->connected = connected;
    page->writeAnimate();
    QVERIFY(finish(*page));
    QTEST(page->progressBar()->value(), "shown");
    QCOMPARE(page->notice().isEmpty(), !fileGoes);
    QCOMPARE(m_desk->clock.takeWaits().count(), connected ? 6 : 0);
    const virtualdesk::AccessoryUpload upload = m_desk->desk.accessory().state().upload;
    QCOMPARE(upload.isComplete(), connected && !fileGoes);
    QCOMPARE(int(upload.mode), connected ? 0x28 : 0);
    QVERIFY(page->button("Write Animate")->isEnabled());
    QCOMPARE(page->busyEvents.count(), connected ? 4 : 2);
}

QTEST_MAIN(TestCanvasFiles)
#include "tst_canvasfiles.moc"
