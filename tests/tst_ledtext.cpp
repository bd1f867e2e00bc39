#include <thread>

#include <QtTest>
#include <QtWidgets>

#include "page/Nightloom/parts/matrixeditor.h"
#include "page/Nightloom/text/pageledmatrixtext.h"
#include "page/Nightloom/text/textwidget.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "support/accessoryfixture.h"
#include "support/matrixforms.h"
#include "usb-hid/accessoryupload.h"

using namespace std::chrono_literals;

namespace {

int lit(const MatrixFrame &frame)
{
    return static_cast<int>(frame.digits().count('1'));
}

} // namespace

/// Texts for the accessory: how they become frames, and how these come to the device.
class TestLedText : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void scrolling();
    void standing();
    void standingPieces();
    void longTexts();
    void nothingToRender();
    void saveData();
    void textThatFails_data();
    void textThatFails();
    void preview();
};

void TestLedText::init()
{
    AccessoryFixture::init();
    connectDevice();
}

void TestLedText::cleanup()
{
    ledWorkThread::shutDown();
    AccessoryFixture::cleanup();
}

/// A text comes in at one edge cell by cell and goes out at the other; to the right it does so backwards.
void TestLedText::scrolling()
{
    for (const MatrixForm &form : matrixForms()) {
        const TextRenderer left(&form, QStringLiteral("H"), TextMotion::Left);
        const TextRenderer right(&form, QStringLiteral("H"), TextMotion::Right);
        QCOMPARE(left.frameCount(), right.frameCount());
        QVERIFY(left.frameCount() > form.columns());
        QCOMPARE(lit(left.frame(left.frameCount() - 1)), 0); // gone
        QVERIFY(lit(left.frame(left.fullestFrame())) > 20);
        QCOMPARE(left.frame(5), right.frame(right.frameCount() - 2 - 5));
        // One frame on, every cell has taken over from the one at its right.
        const MatrixFrame now = left.frame(left.fullestFrame());
        const MatrixFrame next = left.frame(left.fullestFrame() + 1);
        for (std::size_t row = 0; row < now.rows().size(); ++row)
            QVERIFY(std::equal(now.rows()[row].begin() + 1, now.rows()[row].end(), next.rows()[row].begin()));
    }
}

void TestLedText::standing()
{
    const TextRenderer shortText(&kRectangle, QStringLiteral("Hi"), TextMotion::Standing);
    QCOMPARE(shortText.frameCount(), 1);
    const MatrixFrame frame = shortText.frame(0);
    int first = 42;
    int last = -1;
    for (const auto &row : frame.rows()) {
        const auto begin = std::find(row.begin(), row.end(), 1);
        const auto end = std::find(row.rbegin(), row.rend(), 1).base();
        first = std::min(first, static_cast<int>(begin - row.begin()));
        last = std::max(last, static_cast<int>(end - row.begin()) - 1);
    }
    QVERIFY(last > first + 10);
    QVERIFY(std::abs(first - (41 - last)) <= 3); // in the middle
}

/// A wide text is shown piece by piece, each as if it stood there alone: whole words, or else whole letters.
void TestLedText::standingPieces()
{
    for (const QStringList &units :
         {QStringList{"it", "ill", "li", "tilt"}, // that may not be cut; one alone is repeated
          {"W"},
          {"😀"},
          {"👨‍👩‍👧"},
          {"o\u0308\u0301"},
          {"ש"}}) {
        const bool words = units.size() > 1;
        const QString text = words ? units.join(' ') : units.first().repeated(60);
        for (const MatrixForm *form : {&kTapering, &kRectangle}) { // too narrow for all of it
            QList<QByteArray> expected;                            // what stands there alone
            const auto expect = [&expected, form](const QString &piece) {
                const TextRenderer renderer(form, piece, TextMotion::Standing);
                if (renderer.frameCount() == 1)
                    expected.append(renderer.frame(0).digits());
            };
            for (qsizetype i = 0; i < units.size(); ++i) {
                for (qsizetype count = 1; i + count <= units.size(); ++count)
                    expect(units.mid(i, count).join(' '));
            }
            for (int count = 2; !words && count <= 12; ++count)
                expect(units.first().repeated(count));
            const TextRenderer renderer(form, text, TextMotion::Standing);
            QVERIFY(renderer.frameCount() >= 2 * 20);
            for (int i = 0; i < renderer.frameCount(); ++i)
                QVERIFY(expected.contains(renderer.frame(i).digits()));
            QCOMPARE(renderer.lettersShown(), renderer.letters());
        }
    }
}

void TestLedText::longTexts()
{
    for (const auto &[text, letters] : {std::pair(QString(500, 'W'), 500),
                                        {QString(3000, 'i'), 3000},
                                        {QStringLiteral("😀").repeated(500), 500},
                                        {'o' + QString(3000, QChar(0x0308)), 1},
                                        {QString(300, QChar(0xD83D)), 300}, // halves of pairs
                                        {QStringLiteral("שלום world\n\t\r\u2029").repeated(9), 9 * 15}}) {
        for (const auto &[form, limit] : {std::pair{&kTapering, 822}, {&kRectangle, 742}}) {
            accessoryLink.form = form;
            BoundTexts texts;
            TextWidget widget(texts);
            widget.show();
            widget.input()->setText(text);
            for (const TextMotion motion : {TextMotion::Left, TextMotion::Right, TextMotion::Standing}) {
                widget.setMotion(motion);
                const TextRenderer renderer(form, widget.text(), motion);
                const int frames = renderer.frameCount();
                QVERIFY(frames > 0 && frames <= limit);
                QVERIFY(lit(renderer.frame(frames / 2)) > 0);
                QVERIFY(lit(renderer.frame(frames - 1)) >= 0);
                QVERIFY(std::abs(renderer.letters() - letters) <=
                        (text.contains('\r') ? 9 : 0)); // a line's end may be one
                const QString told = widget.fit();
                QCOMPARE(told.isEmpty(), renderer.lettersShown() == renderer.letters());
                QVERIFY(told.isEmpty() || told.contains(QString::number(renderer.lettersShown())));
                QVERIFY(letters <= 500 || !told.isEmpty());
            }
        }
    }
}

void TestLedText::nothingToRender()
{
    QCOMPARE(TextRenderer(nullptr, QStringLiteral("Hello"), TextMotion::Left).frameCount(), 0);
    QCOMPARE(TextRenderer(&kTapering, QString(), TextMotion::Left).frameCount(), 0);
    BoundTexts texts;
    TextWidget widget(texts);
    m_desk->takeLog();
    QVERIFY(!widget.startJob());
    QCOMPARE(m_desk->takeLog(), QStringList{"Input text is null"});
    QSignalSpy progress(&widget, &TextWidget::progress);
    WorkerThread empty(1000, QString(), 0, &TextWidget::renderer);
    QSignalSpy ready(&empty, &WorkerThread::framesReady);
    empty.begin();
    QVERIFY(empty.wait(5000));
    QCoreApplication::processEvents();
    QVERIFY(ready.isEmpty() && progress.isEmpty());
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
    QSignalSpy made(page.text(), &TextWidget::progress);
    QStringList phases;
    connect(ledWorkThread::instance(), &ledWorkThread::progress, &page, [&] {
        if (!phases.contains(page.work()->stepName()))
            phases.append(page.work()->stepName());
    });
    page.saveButton()->click();
    QVERIFY(!page.saveButton()->isEnabled());
    useForm(1); // too late for this one
    QVERIFY(QTest::qWaitFor([&] { return !page.isBusy(); }));
    QCOMPARE(phases.first(), QStringLiteral("Erase"));
    QVERIFY(phases.contains(QStringLiteral("Write Data")));
    QCOMPARE(busy, (QList<int>{1, 0}));
    QVERIFY(page.saveButton()->isEnabled());
    const TextRenderer renderer(&kTapering, QStringLiteral("Loom"), TextMotion::Left);
    const QByteArray written = readText(QStringLiteral("out_frame.txt"));
    QCOMPARE(written.size(), renderer.frameCount() * 949);
    QCOMPARE(written.sliced(renderer.fullestFrame() * 949, 949), renderer.frame(renderer.fullestFrame()).digits());
    QCOMPARE(made.count(), renderer.frameCount());
    QCOMPARE(made.at(0).first().toInt(), 100 / renderer.frameCount());
    QCOMPARE(made.last().first().toInt(), 100);
    QVERIFY(accessory().state().upload.isComplete());
    QCOMPARE(m_desk->clock.takeWaits().count(), 24);
}

void TestLedText::textThatFails_data()
{
    columns<QString, QString>("fault", "notice");
    row("no text", "no text", "There is no text yet.");
    row("the file cannot be written", "folder", "The file cannot be written");
    row("pulled out", "pulled out", "The accessory did not take everything.");
    row("cancelled at once", "cancelled", "Cancelled. Nothing was changed.");
    row("cancelled in its upload", "upload", "The accessory did not take everything.");
}

void TestLedText::textThatFails()
{
    const auto [fault, notice] = fetch<QString, QString>();
    if (fault == QStringLiteral("folder"))
        QDir().mkdir(QStringLiteral("out_frame.txt"));
    if (fault == QStringLiteral("pulled out"))
        accessory().unplugAtWrite(3);
    pageLEDMatrixText page([] { return true; });
    page.text()->input()->setText(fault == QStringLiteral("no text") ? QString() : QStringLiteral("A"));
    const auto cancel = [&page] { page.work()->cancelButton()->click(); };
    const int listener = accessory().addListener([&] { // keeps the upload from being faster than the hand
        if (fault != QStringLiteral("upload") || accessory().state().upload.received != 3)
            return;
        const std::stop_token stop = uploadStop();
        QMetaObject::invokeMethod(&page, cancel);
        for (const QDeadlineTimer patience(10000); !stop.stop_requested() && !patience.hasExpired();)
            std::this_thread::yield();
    });
    page.saveButton()->click();
    if (fault == QStringLiteral("cancelled"))
        cancel();
    QVERIFY(QTest::qWaitFor([&] { return !page.isBusy(); }));
    accessory().removeListener(listener);
    QTRY_COMPARE(page.work()->notice().left(notice.size()), notice);
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
    QVERIFY(!page.work()->cancelButton()->isVisible()); // nothing is under way
    QVERIFY(page.text()->findChild<QPushButton *>(QStringLiteral("Scroll Left"))->isChecked());
    for (QPushButton *button : page.findChildren<QPushButton *>()) {
        if (button->text() == QLatin1String("Preview"))
            button->click();
    }
    m_desk->clock.advance(100ms);
    QVERIFY(shown->frame().digits() != still);
    page.hide(); // nobody sees it
    QVERIFY(!page.text()->player().isPlaying());
    page.show();
    page.text()->togglePreview();
    page.text()->input()->clear(); // nothing is left to play
    QCOMPARE(shown->frame().digits(), QByteArray(949, '0'));
    QVERIFY(!page.text()->player().isPlaying());
    page.text()->input()->setText(QStringLiteral("A"));
    useForm(1);
    page.hide();
    page.show();
    QCOMPARE(page.text()->preview()->frame().form().number, 1);
    QVERIFY(page.text()->preview()->frame().digits().contains('1'));
}

QTEST_MAIN(TestLedText)
#include "tst_ledtext.moc"
