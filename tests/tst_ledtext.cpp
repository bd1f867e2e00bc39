#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

#include "ledmatrix/matrixform.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/matrixeditor.h"
#include "page/Nightloom/pageledmatrixtext.h"
#include "page/Nightloom/textwidget.h"
#include "support/datarow.h"
#include "support/deskfixture.h"
#include "usb-hid/hidtransport.h"

using namespace std::chrono_literals;

namespace {

int lit(const MatrixFrame &frame)
{
    return static_cast<int>(frame.digits().count('1'));
}

} // namespace

/// Texts for the accessory: how they become frames, and how these come to the device.
class TestLedText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void scrolling_data();
    void scrolling();
    void standing();
    void longTexts_data();
    void longTexts();
    void nothingToRender();
    void jobProgress();
    void saveData();
    void textThatFails_data();
    void textThatFails();
    void preview();

private:
    std::unique_ptr<DeskFixture> m_desk;
};

void TestLedText::init()
{
    m_desk = std::make_unique<DeskFixture>();
    reopenHid();
}

void TestLedText::cleanup()
{
    ledWorkThread::shutDown();
    m_desk.reset();
}

void TestLedText::scrolling_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("tapering") << 0;
    QTest::newRow("rectangle") << 1;
}

/// A text comes in at one edge cell by cell and goes out at the other; to the right it does so backwards.
void TestLedText::scrolling()
{
    QFETCH(int, form);
    const TextRenderer left(form, QStringLiteral("H"), TextMotion::Left);
    const TextRenderer right(form, QStringLiteral("H"), TextMotion::Right);
    QCOMPARE(left.frameCount(), right.frameCount());
    QVERIFY(left.frameCount() > matrixColumns(form));
    QCOMPARE(lit(left.frame(left.frameCount() - 1)), 0); // gone
    QVERIFY(lit(left.frame(left.fullestFrame())) > 20);
    QCOMPARE(left.frame(5), right.frame(right.frameCount() - 2 - 5));
    // One frame on, every cell has taken over from the one at its right.
    const MatrixFrame now = left.frame(left.fullestFrame());
    const MatrixFrame next = left.frame(left.fullestFrame() + 1);
    for (std::size_t row = 0; row < now.rows().size(); ++row) {
        for (std::size_t column = 1; column < now.rows()[row].size(); ++column)
            QCOMPARE(next.rows()[row][column - 1], now.rows()[row][column]);
    }
}

void TestLedText::standing()
{
    const TextRenderer shortText(kRectangleForm, QStringLiteral("Hi"), TextMotion::Standing);
    QCOMPARE(shortText.frameCount(), 1);
    const MatrixFrame frame = shortText.frame(0);
    int first = 42;
    int last = -1;
    for (const auto &row : frame.rows()) {
        for (int column = 0; column < 42; ++column) {
            if (row[static_cast<std::size_t>(column)] == 1) {
                first = std::min(first, column);
                last = std::max(last, column);
            }
        }
    }
    QVERIFY(last > first + 10);
    QVERIFY(std::abs(first - (41 - last)) <= 3); // in the middle
    const TextRenderer longText(kRectangleForm, QStringLiteral("Hello accessory"), TextMotion::Standing);
    QVERIFY(longText.frameCount() > 20);
    QVERIFY(longText.frame(0) != longText.frame(longText.frameCount() - 1));
}

void TestLedText::longTexts_data()
{
    QTest::addColumn<int>("motion");
    QTest::addColumn<int>("length");
    QTest::newRow("left") << 0 << 500;
    QTest::newRow("right") << 1 << 500;
    QTest::newRow("standing") << 2 << 500;
    QTest::newRow("endless") << 0 << 100000;
}

void TestLedText::longTexts()
{
    QFETCH(int, motion);
    QFETCH(int, length);
    const TextRenderer renderer(0, QString(length, QLatin1Char('W')), static_cast<TextMotion>(motion));
    QVERIFY(renderer.frameCount() > 400 && renderer.frameCount() <= 822);
    QVERIFY(lit(renderer.frame(renderer.frameCount() / 2)) > 0); // nothing of it is missing
    renderer.frame(renderer.frameCount() - 1);
}

void TestLedText::nothingToRender()
{
    QCOMPARE(TextRenderer(7, QStringLiteral("Hello"), TextMotion::Left).frameCount(), 0);
    QCOMPARE(TextRenderer(0, QString(), TextMotion::Left).frameCount(), 0);
    BoundTexts texts;
    TextWidget widget(texts);
    m_desk->takeLog();
    QVERIFY(!widget.startJob());
    QCOMPARE(m_desk->takeLog(), QStringList{"Input text is null"});
    QSignalSpy progress(&widget, &TextWidget::progress);
    WorkerThread empty(1000, QString(), 0, widget);
    QSignalSpy ready(&empty, &WorkerThread::framesReady);
    empty.start();
    QVERIFY(empty.wait(5000));
    QCoreApplication::processEvents();
    QVERIFY(ready.isEmpty() && progress.isEmpty());
}

void TestLedText::jobProgress()
{
    BoundTexts texts;
    TextWidget widget(texts);
    widget.input()->setText(QStringLiteral("Night"));
    QList<int> values;
    QByteArrayList frames;
    connect(&widget, &TextWidget::progress, this, [&](int value) { values.append(value); });
    connect(&widget, &TextWidget::framesReady, this, [&](const QByteArrayList &ready) { frames = ready; });
    QVERIFY(widget.startJob());
    QVERIFY(QTest::qWaitFor([&] { return !frames.isEmpty(); }));
    const TextRenderer renderer(0, QStringLiteral("Night"), TextMotion::Left);
    QCOMPARE(frames.size(), renderer.frameCount());
    QCOMPARE(frames[renderer.fullestFrame()], renderer.frame(renderer.fullestFrame()).digits());
    for (qsizetype i = 0; i < values.size(); ++i)
        QCOMPARE(values[i], static_cast<int>((i + 1) * 100 / frames.size()));
    QCOMPARE(values.size(), frames.size());
}

void TestLedText::saveData()
{
    bool connected = false;
    pageLEDMatrixText page([&connected] { return connected; });
    QList<int> busy;
    connect(&page, &pageLEDMatrixText::busyBegins, this, [&] { busy.append(1); });
    connect(&page, &pageLEDMatrixText::busyEnded, this, [&] { busy.append(0); });
    page.text()->input()->setText(QStringLiteral("Loom"));
    page.saveButton()->click();
    QVERIFY(!page.isBusy() && busy.isEmpty()); // the accessory is not there

    connected = true;
    QStringList phases;
    connect(ledWorkThread::instance(), &ledWorkThread::progress, &page, [&] {
        if (!phases.contains(page.phase()))
            phases.append(page.phase());
    });
    page.saveButton()->click();
    QVERIFY(!page.saveButton()->isEnabled());
    QVERIFY(QTest::qWaitFor([&] { return !page.isBusy(); }));
    QCOMPARE(phases.first(), QStringLiteral("Erase"));
    QVERIFY(phases.contains(QStringLiteral("Write Data")));
    QCOMPARE(busy, (QList<int>{1, 0}));
    QVERIFY(page.saveButton()->isEnabled());
    const TextRenderer renderer(0, QStringLiteral("Loom"), TextMotion::Left);
    QCOMPARE(QFile(QStringLiteral("out_frame.txt")).size(), renderer.frameCount() * 949);
    QVERIFY(m_desk->desk.accessory().state().upload.isComplete());
    QCOMPARE(m_desk->clock.takeWaits().count(), 24);
}

void TestLedText::textThatFails_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("notice");
    row("no text", "no text", "There is no text yet.");
    row("the file cannot be written", "folder", "The file cannot be written");
    row("pulled out", "pulled out", "");
}

void TestLedText::textThatFails()
{
    QFETCH(QString, fault);
    QFETCH(QString, notice);
    if (fault == QStringLiteral("folder"))
        QDir().mkdir(QStringLiteral("out_frame.txt"));
    if (fault == QStringLiteral("pulled out"))
        m_desk->desk.accessory().unplugAtWrite(3);
    pageLEDMatrixText page([] { return true; });
    page.text()->input()->setText(fault == QStringLiteral("no text") ? QString() : QStringLiteral("A"));
    page.saveButton()->click();
    QVERIFY(QTest::qWaitFor([&] { return !page.isBusy(); }));
    QCOMPARE(page.notice().left(notice.size()), notice);
    QCOMPARE(page.notice().isEmpty(), notice.isEmpty());
    QVERIFY(page.saveButton()->isEnabled() && page.text()->isEnabled());
}

void TestLedText::preview()
{
    pageLEDMatrixText page([] { return true; });
    page.show();
    MatrixEditor *shown = page.text()->preview();
    page.text()->input()->setText(QStringLiteral("A"));
    const QByteArray still = shown->frame().digits();
    QVERIFY(still.contains('1'));
    page.text()->togglePreview();
    m_desk->clock.advance(100ms);
    QVERIFY(shown->frame().digits() != still);
    page.text()->input()->clear(); // nothing is left to play
    QCOMPARE(shown->frame().digits(), QByteArray(949, '0'));
    QVERIFY(!page.text()->player().isPlaying());
    matrixForm = kRectangleForm;
    page.hide();
    page.show();
    QCOMPARE(page.text()->preview()->frame().form(), kRectangleForm);
}

QTEST_MAIN(TestLedText)
#include "tst_ledtext.moc"
