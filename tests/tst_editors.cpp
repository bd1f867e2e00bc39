#include <QtTest>

#include "page/Nightloom/canvas/animationhistory.h"
#include "support/datarow.h"
#include "support/deskfixture.h"
#include "support/matrixcells.h"
#include "support/matrixforms.h"
#include "support/textfile.h"

namespace {

void drag(MatrixEditor &editor, QPoint from, QPoint to)
{
    QTest::mousePress(&editor, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, editor.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&editor, &move);
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, to);
}

} // namespace

/// Frames and the editors that they are drawn in.
class TestEditors : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void frameOrder_data();
    void frameOrder();
    void everyCellIsHit();
    void pressAndDrag();
    void fastMouseSkipsNoCell();
    void keyboardCursor();
    void repaintsOnlyTheCell();
    void editorAppendsToItsFile();
};

void TestEditors::frameOrder_data()
{
    columns<int, int, int, int>("form", "row", "column", "place");
    QTest::newRow("tapering, first cell") << 0 << 0 << 0 << 0;
    QTest::newRow("tapering, row 2 follows row 0") << 0 << 2 << 0 << 25;
    QTest::newRow("tapering, last even cell") << 0 << 72 << 0 << 492;
    QTest::newRow("tapering, in the middle of the even rows") << 0 << 38 << 12 << 379;
    QTest::newRow("tapering, row 1 follows the even rows") << 0 << 1 << 0 << 493;
    QTest::newRow("tapering, in the middle of the odd rows") << 0 << 37 << 11 << 840;
    QTest::newRow("tapering, last cell") << 0 << 71 << 0 << 948;
    QTest::newRow("rectangle, first cell") << 1 << 0 << 0 << 0;
    QTest::newRow("rectangle, row by row") << 1 << 1 << 3 << 45;
    QTest::newRow("rectangle, last cell") << 1 << 24 << 41 << 1049;
}

/// A cell that is pressed is at its place in the file, and a file with that place lit lights that cell alone.
void TestEditors::frameOrder()
{
    const auto [form, row, column, place] = fetch<int, int, int, int>();
    const std::unique_ptr<MatrixEditor> editor(createMatrixEditor(*findMatrixForm(form), nullptr));
    QTest::mouseClick(editor.get(), Qt::LeftButton, {}, middle(*editor, {row, column}));
    QByteArray digits(form == 0 ? 949 : 1050, '0');
    digits[place] = '1';
    QCOMPARE(editor->frame().digits(), digits);

    const std::unique_ptr<MatrixEditor> other(createMatrixEditor(*findMatrixForm(form), nullptr));
    other->setFrame(editor->frame().flat());
    QCOMPARE(other->frame().cell(row, column), 1);
    QCOMPARE(litCells(*other), 1);
    other->clearFrame();
    QCOMPARE(litCells(*other), 0);
}

/// Each cell is hit where it is drawn, at its corners too; together they take all the points that hit anything.
void TestEditors::everyCellIsHit()
{
    for (const auto &[form, cellSize] : {std::pair{&kTapering, 10}, {&kTapering, 7}, {&kRectangle, 13}}) {
        const MatrixGeometry geometry(*form, cellSize);
        int points = 0;
        for (int y = -1; y <= geometry.size().height(); ++y) {
            for (int x = -1; x <= geometry.size().width(); ++x) {
                const auto cell = geometry.cellAt({x, y});
                QVERIFY(!cell || geometry.cellRect(*cell).contains(x, y));
                points += cell.has_value();
            }
        }
        QCOMPARE(points, form->cells() * cellSize * cellSize); // none lies beyond the edge
    }
}

void TestEditors::pressAndDrag()
{
    LEDMatrixWidgetRect editor(kRectangle);
    QCOMPARE(editor.size(), QSize(42 * 13, 25 * 13));
    QSignalSpy edited(&editor, &MatrixEditor::edited);
    drag(editor, middle(editor, {2, 2}), middle(editor, {2, 6}));
    QCOMPARE(litCells(editor), 5);
    QCOMPARE(edited.count(), 1); // one stroke, one change
    drag(editor, middle(editor, {2, 8}), middle(editor, {2, 4}));
    QCOMPARE(litCells(editor), 7); // dragging over lit cells leaves them lit
    QTest::mouseClick(&editor, Qt::LeftButton, {}, middle(editor, {2, 4}));
    QCOMPARE(editor.frame().cell(2, 4), 0);
    QTest::mouseClick(&editor, Qt::RightButton, {}, middle(editor, {9, 9}));
    QTest::mouseMove(&editor, middle(editor, {9, 9})); // no button is held
    QCOMPARE(editor.frame().cell(9, 9), 0);
    QCOMPARE(edited.count(), 3);
    QTest::mousePress(&editor, Qt::LeftButton, {}, middle(editor, {20, 1}));
    const QPoint far = middle(editor, {20, 9}); // released where nobody told
    QMouseEvent move(QEvent::MouseMove, far, editor.mapToGlobal(far), Qt::NoButton, Qt::RightButton, {});
    QApplication::sendEvent(&editor, &move);
    QCOMPARE(editor.frame().cell(20, 9), 0);
    QCOMPARE(edited.count(), 4);
    QTest::mouseRelease(&editor, Qt::LeftButton, {}, far);
    editor.setEditable(false);
    drag(editor, middle(editor, {0, 0}), middle(editor, {0, 5}));
    QTest::keyClick(&editor, Qt::Key_Space);
    QCOMPARE(edited.count(), 4);
}

void TestEditors::fastMouseSkipsNoCell()
{
    LEDMatrixWidget editor(kTapering);
    drag(editor, middle(editor, {0, 12}), middle(editor, {70, 1}));
    for (int row = 0; row <= 70; ++row) {
        const auto &cells = editor.frame().rows()[static_cast<std::size_t>(row)];
        QVERIFY2(std::count(cells.begin(), cells.end(), 1) > 0, qPrintable(QString::number(row)));
    }
    editor.clearFrame();
    drag(editor, middle(editor, {0, 0}), QPoint(4000, 5)); // far beyond the edge
    QCOMPARE(litCells(editor), 25);
    for (const int to : {9, 5}) { // the press puts a cell out, which only the mouse that comes back to it lights again
        editor.setFrame(toFrame(QBitArray(949, true), kTapering).flat());
        drag(editor, middle(editor, {0, 5}), middle(editor, {0, to}) + QPoint(2, 0));
        QCOMPARE(editor.frame().cell(0, 5), to == 5 ? 1 : 0);
    }
}

void TestEditors::keyboardCursor()
{
    LEDMatrixWidget editor(kTapering);
    QCOMPARE(editor.cursorCell(), (MatrixCell{0, 0}));
    QTest::keyClick(&editor, Qt::Key_Left); // the edge
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(&editor, Qt::Key_Right);
    QCOMPARE(editor.cursorCell(), (MatrixCell{0, 24}));
    QTest::keyClick(&editor, Qt::Key_Down);
    QCOMPARE(editor.cursorCell(), (MatrixCell{1, 23})); // a shorter row
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Row 2, cell 24: off"));
    QTest::keyClick(&editor, Qt::Key_Space);
    QCOMPARE(editor.frame().cell(1, 23), 1);
    QCOMPARE(editor.accessibleDescription(), QStringLiteral("Row 2, cell 24: on"));
    for (int i = 0; i < 80; ++i)
        QTest::keyClick(&editor, Qt::Key_Down);
    QCOMPARE(editor.cursorCell(), (MatrixCell{72, 0}));
    QTest::keyClick(&editor, Qt::Key_Space);
    QTest::keyClick(&editor, Qt::Key_Space);
    QCOMPARE(litCells(editor), 1);
}

void TestEditors::repaintsOnlyTheCell()
{
    class PaintedRegion : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
        QRegion region;
    } painted;
    LEDMatrixWidgetRect editor(kRectangle);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QCoreApplication::processEvents();
    QTest::mouseClick(&editor, Qt::LeftButton, {}, middle(editor, {10, 10})); // takes the cursor there
    QCoreApplication::processEvents();
    editor.installEventFilter(&painted);
    QTest::mouseClick(&editor, Qt::LeftButton, {}, middle(editor, {10, 10}));
    QCoreApplication::processEvents();
    const QRect cell = editor.geometry().cellRect({10, 10});
    QVERIFY(painted.region.contains(cell.center()));
    QVERIFY(cell.adjusted(-4, -4, 4, 4).contains(painted.region.boundingRect()));
}

void TestEditors::editorAppendsToItsFile()
{
    const DeskFixture desk; // whose disk takes the file
    LEDMatrixWidget editor(kTapering);
    editor.setDataFile(QStringLiteral("frames.csv"));
    QVERIFY(editor.appendFrameToFile());
    QTest::mouseClick(&editor, Qt::LeftButton, {}, middle(editor, {0, 1}));
    QVERIFY(editor.appendFrameToFile());
    QCOMPARE(readText(QStringLiteral("frames.csv")),
             QByteArray(949, '0') + QByteArray("01") + QByteArray(947, '0')); // no line end, no separator
    editor.setDataFile(QStringLiteral("missing/frames.csv"));
    QVERIFY(!editor.appendFrameToFile());
}

QTEST_MAIN(TestEditors)
#include "tst_editors.moc"
