#include <sys/resource.h>

#include <csignal>

#include <QComboBox>
#include <QFile>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QtTest>

#include "ledmatrix/matrixform.h"
#include "page/Nightloom/animationfile.h"
#include "page/Nightloom/frametabs.h"
#include "page/Nightloom/matrixeditor.h"
#include "page/Nightloom/pageledmatrixcanvas.h"
#include "support/deskfixture.h"
#include "usb-hid/hidtransport.h"

using namespace std::chrono_literals;

namespace {

constexpr char kDataFile[] = "./LEDMatrixData.txt";

/// The canvas page with its boxes and file dialogs answered by the test.
class AnsweredCanvas : public pageLEDMatrixCanvas
{
public:
    AnsweredCanvas() : pageLEDMatrixCanvas([this] { return connected; })
    {
        connect(this, &pageLEDMatrixCanvas::busyBegins, this, [this] { busyEvents.append(1); });
        connect(this, &pageLEDMatrixCanvas::busyEnded, this, [this] { busyEvents.append(0); });
    }

    bool connected = true;
    QString fileName;
    QStringList warnings;
    QList<int> busyEvents;

protected:
    QString askSaveFile() override { return fileName; }
    QString askOpenFile() override { return fileName; }
    void warn(const QString &text) override { warnings.append(text); }
};

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

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be opened)");
}

void writeFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QPoint middle(const MatrixEditor &editor, MatrixCell cell)
{
    return editor.geometry().cellRect(cell).center();
}

int litCells(const MatrixEditor &editor)
{
    return static_cast<int>(editor.frame().digits().count('1'));
}

/// Draws cell number i of row 0 in the open editor.
void draw(AnsweredCanvas &page, int column)
{
    QTest::mouseClick(page.tabs()->currentEditor(), Qt::LeftButton, {},
                      middle(*page.tabs()->currentEditor(), {0, column}));
}

QStringList tabNames(const AnsweredCanvas &page)
{
    QStringList names;
    for (int i = 0; i < page.tabs()->count(); ++i)
        names.append(page.tabs()->tabText(i));
    return names;
}

} // namespace

/// The page that animations are drawn on: its frames, its history, its files and its upload.
class TestCanvas : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void importRules_data();
    void importRules();
    void frameCounter();
    void tabNumbers();
    void undoBringsEverythingBack();
    void unfinishedStrokeIsKept();
    void keyboardReachesTheCells();
    void previewAndOnionSkin();
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
    void eachFormHasItsAnimation();

private:
    std::unique_ptr<AnsweredCanvas> makePage(int form = kTaperingForm);
    static bool finish(const AnsweredCanvas &page)
    {
        return QTest::qWaitFor([&page] { return !page.isBusy(); });
    }

    std::unique_ptr<DeskFixture> m_desk;
};

void TestCanvas::init()
{
    m_desk = std::make_unique<DeskFixture>();
    matrixForm = kTaperingForm;
}

void TestCanvas::cleanup()
{
    closeHid();
    matrixForm = kTaperingForm;
    m_desk.reset();
}

std::unique_ptr<AnsweredCanvas> TestCanvas::makePage(int form)
{
    matrixForm = form;
    auto page = std::make_unique<AnsweredCanvas>();
    page->resize(1000, 680);
    page->show();
    return page;
}

void TestCanvas::importRules_data()
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

void TestCanvas::importRules()
{
    QFETCH(int, form);
    QFETCH(QByteArray, content);
    QFETCH(int, frames);
    const auto page = makePage(form);
    page->addFrame();
    writeFile(QStringLiteral("in.csv"), content);
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
    QCOMPARE(tabNames(*page), (QStringList{"1", "2"}));
}

void TestCanvas::frameCounter()
{
    const auto page = makePage();
    while (page->frameCounter() < 192)
        page->addFrame();
    page->addFrame();
    QCOMPARE(page->tabs()->count(), 193);
    QVERIFY(page->warnings.isEmpty());
    page->addFrame();
    page->duplicateFrame();
    QCOMPARE(page->warnings, (QStringList{"Maximum 192 frames", "Maximum 192 frames"}));
    page->deleteFrame();
    page->duplicateFrame();
    QCOMPARE(page->tabs()->count(), 193);
    QCOMPARE(page->warnings.count(), 2);
}

void TestCanvas::tabNumbers()
{
    const auto page = makePage();
    page->addFrame();
    page->addFrame();
    page->tabs()->setCurrentIndex(1);
    page->deleteFrame();
    page->addFrame();
    QCOMPARE(tabNames(*page), (QStringList{"1", "3", "4"}));
    QCOMPARE(page->tabs()->currentIndex(), 2);
    while (page->frameCounter() > 0)
        page->deleteFrame();
    page->deleteFrame();
    page->cleanFrame();
    QCOMPARE(page->frameCounter(), 0);
    page->addFrame();
    QCOMPARE(tabNames(*page), QStringList{"1"});
}

void TestCanvas::undoBringsEverythingBack()
{
    const auto page = makePage();
    QList<QPair<QStringList, QByteArrayList>> states;
    const auto look = [&page] { return qMakePair(tabNames(*page), page->tabs()->digits()); };
    const std::function<void()> steps[] = {
        [&] { draw(*page, 3); },      [&] { page->addFrame(); },
        [&] { draw(*page, 4); },      [&] { page->duplicateFrame(); },
        [&] { page->cleanFrame(); },  [&] { page->tabs()->setCurrentIndex(0), draw(*page, 7); },
        [&] { page->deleteFrame(); }, [&] { page->deleteFrame(); },
        [&] { page->deleteFrame(); }, [&] { page->addFrame(); },
    };
    states.append(look());
    for (const auto &step : steps) {
        step();
        states.append(look());
    }
    for (qsizetype i = states.size() - 2; i >= 0; --i) {
        page->undo();
        QCOMPARE(look(), states[i]);
    }
    page->undo(); // nothing is left to take back
    QVERIFY(!page->button("Undo")->isEnabled());
    for (qsizetype i = 1; i < states.size(); ++i) {
        page->redo();
        QCOMPARE(look(), states[i]);
    }
    page->undo();
    page->undo();
    QCOMPARE(page->tabs()->count(), 1); // a change forgets what was taken back
    draw(*page, 1);
    QVERIFY(!page->button("Redo")->isEnabled());
}

/// The page is closed, or something else begins, before the button is released.
void TestCanvas::unfinishedStrokeIsKept()
{
    const auto page = makePage();
    MatrixEditor *editor = page->tabs()->currentEditor();
    QTest::mousePress(editor, Qt::LeftButton, {}, middle(*editor, {0, 5}));
    page->addFrame();
    QCOMPARE(page->frameCounter(), 2);
    page->undo();
    QCOMPARE(litCells(*page->tabs()->editor(0)), 1);
    page->undo();
    QCOMPARE(litCells(*page->tabs()->editor(0)), 0);
    QTest::mousePress(editor, Qt::LeftButton, {}, middle(*editor, {0, 6}));
    page->hide();
    page->show();
    page->undo();
    page->redo();
    QCOMPARE(litCells(*page->tabs()->editor(0)), 1);
}

void TestCanvas::keyboardReachesTheCells()
{
    const auto page = makePage();
    page->addFrame();
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    page->tabs()->tabBar()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(page->focusWidget(), Qt::Key_Tab);
    MatrixEditor *editor = page->tabs()->currentEditor();
    QCOMPARE(page->focusWidget(), editor);
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(litCells(*editor), 1);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(litCells(*editor), 0);
    QTest::keyClick(editor, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(litCells(*editor), 1);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(litCells(*editor), 1);
}

void TestCanvas::previewAndOnionSkin()
{
    const auto page = makePage();
    draw(*page, 0);
    page->addFrame();
    draw(*page, 1);
    MatrixEditor *editor = page->tabs()->currentEditor();
    const auto colorOf = [editor](int column) {
        return editor->grab().toImage().pixelColor(editor->geometry().cellRect({0, column}).center());
    };
    const QColor dark = colorOf(9);
    const QColor lit = colorOf(1);
    QCOMPARE(colorOf(0), dark);
    QTest::mouseClick(page->button("Onion Skin"), Qt::LeftButton);
    QVERIFY(colorOf(0) != dark && colorOf(0) != lit);

    page->togglePreview(); // the open frame, then from the first on, in the open editor
    m_desk->clock.advance(100ms);
    QCOMPARE(colorOf(0), lit);
    QCOMPARE(colorOf(1), dark);
    draw(*page, 9); // nothing is drawn into a frame that only passes by
    m_desk->clock.advance(100ms);
    QCOMPARE(colorOf(0).name(), dark.name()); // the onion skin waits as well
    QCOMPARE(colorOf(1), lit);
    page->addFrame();
    m_desk->clock.advance(1s);
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0));
    QCOMPARE(page->tabs()->editor(1)->frame().digits(), "01" + QByteArray(947, '0'));
}

void TestCanvas::exportInTabOrder()
{
    const auto page = makePage(kRectangleForm);
    draw(*page, 0);
    page->duplicateFrame();
    draw(*page, 1);
    page->fileName = QStringLiteral("out.csv");
    writeFile(page->fileName, "what was there before");
    page->exportAnimate();
    QVERIFY(!page->button("Add Frame")->isEnabled());
    QVERIFY(finish(*page));
    QCOMPARE(contentOf(page->fileName), "10" + QByteArray(1048, '0') + "11" + QByteArray(1048, '0'));
    QCOMPARE(page->dataFile(), page->fileName);
    QCOMPARE(page->progressBar()->value(), 100);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{"out.csv"});
    QVERIFY(!page->button("Write Animate")->isEnabled()); // exported is not saved
}

void TestCanvas::exportProgress_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("none") << 0 << QList<int>{100};
    QTest::newRow("each of a few") << 3 << QList<int>{33, 66, 100, 100};
    QTest::newRow("every second") << 25 << QList<int>{8, 16, 24, 32, 40, 48, 56, 64, 72, 80, 88, 96, 100};
}

void TestCanvas::exportProgress()
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

void TestCanvas::fullDiskKeepsTheOldFile()
{
    const auto page = makePage();
    page->addFrame();
    page->saveAnimate();
    QVERIFY(finish(*page));
    const QByteArray before = contentOf(QLatin1String(kDataFile));
    draw(*page, 2);
    {
        const FullDisk full(1000); // the second frame finds no room
        page->saveAnimate();
        QVERIFY(finish(*page));
    }
    QCOMPARE(contentOf(QLatin1String(kDataFile)), before);
    QCOMPARE(QDir().entryList(QDir::Files).count(), 1);
    QCOMPARE(page->progressBar()->value(), -1);
    QVERIFY(page->notice().startsWith(QStringLiteral("The file cannot be written")));
    QVERIFY(!page->button("Write Animate")->isEnabled());
    page->saveAnimate();
    QVERIFY(finish(*page));
    QVERIFY(contentOf(QLatin1String(kDataFile)) != before);
    QVERIFY(page->button("Write Animate")->isEnabled());
    QVERIFY(page->notice().isEmpty());
}

void TestCanvas::faultsLeaveThePageUsable_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("imports");
    QTest::newRow("export into a folder that is not there") << "missing/out.csv" << false;
    QTest::newRow("export onto a folder") << "folder" << false;
    QTest::newRow("import of a file that is not there") << "missing.csv" << true;
    QTest::newRow("import of a folder") << "folder" << true;
}

void TestCanvas::faultsLeaveThePageUsable()
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
    QVERIFY(m_desk->takeLog().join(QLatin1Char(' ')).contains(QStringLiteral("Failed to open file:")) ||
            fileName == QStringLiteral("folder"));
    QCOMPARE(litCells(*page->tabs()->editor(0)), 1);
    QVERIFY(page->button("Add Frame")->isEnabled() && page->tabs()->isEnabled());
    QVERIFY(!page->button("Write Animate")->isEnabled()); // it would send that file
    QCOMPARE(page->busyEvents, (QList<int>{1, 0, 1, 0}));
}

void TestCanvas::dialogFailures()
{
    const auto page = makePage();
    page->exportAnimate();
    page->importAnimate();
    page->fileName = QStringLiteral("empty.csv");
    writeFile(page->fileName, {});
    page->importAnimate();
    QCOMPARE(page->warnings, (QStringList{"No file path selected.", "No file path selected.", "File is null."}));
    QVERIFY(page->dataFile().isEmpty() && page->busyEvents.isEmpty());
    QCOMPARE(page->tabs()->count(), 1);
}

void TestCanvas::savedFlag()
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

void TestCanvas::upload_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("fileGoes");
    QTest::addColumn<int>("shown");
    QTest::newRow("whole") << true << false << 100;
    QTest::newRow("without accessory") << false << false << 100;
    QTest::newRow("the file is gone") << true << true << -1;
}

void TestCanvas::upload()
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

void TestCanvas::eachFormHasItsAnimation()
{
    const auto page = makePage();
    draw(*page, 3);
    page->addFrame();
    const QByteArrayList before = page->tabs()->digits();
    matrixForm = kRectangleForm;
    page->updateInterfaceData();
    QCOMPARE(page->tabs()->digits(), QByteArrayList{QByteArray(1050, '0')});
    QVERIFY(qobject_cast<LEDMatrixWidgetRect *>(page->tabs()->editor(0)));
    matrixForm = kTaperingForm;
    page->updateInterfaceData();
    QCOMPARE(page->tabs()->digits(), before);
    matrixForm = 7; // none
    page->updateInterfaceData();
    page->addFrame();
    page->duplicateFrame();
    page->cleanFrame();
    QCOMPARE(page->tabs()->count(), 0);
}

QTEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
