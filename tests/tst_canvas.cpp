#include <QtTest>
#include <QtWidgets>

#include "controls/sliderwidget.h"
#include "support/accessoryfixture.h"
#include "support/answeredcanvas.h"
#include "support/fulldisk.h"

using namespace std::chrono_literals;

namespace {

constexpr const char *kDataFile = pageLEDMatrixCanvas::kDataFile;

QStringList tabNames(const AnsweredCanvas &page)
{
    QStringList names;
    for (int i = 0; i < page.tabs()->count(); ++i)
        names.append(page.tabs()->tabText(i));
    return names;
}

} // namespace

/// The page that animations are drawn on: its frames, their history, how they are looked at, and that they are not
/// lost.
class TestCanvas : public AccessoryFixture
{
    Q_OBJECT
private Q_SLOTS:
    void frameCounter();
    void tabNumbers();
    void undoBringsEverythingBack();
    void longestHistory();
    void unfinishedStrokeIsKept();
    void keyboardReachesTheCells();
    void onlyKeysScroll();
    void toolsFitALowPage();
    void previewAndOnionSkin();
    void eachFormHasItsAnimation();
    void shownAgain();
    void leaving();
};

void TestCanvas::frameCounter()
{
    const auto page = makePage();
    while (page->frameCounter() < 192)
        page->addFrame();
    page->addFrame();
    QCOMPARE(page->tabs()->count(), 193);
    QVERIFY(page->warnings.isEmpty() && page->button("Undo")->text() == QLatin1String("Undo"));
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

/// Strokes do not push what was there before them out, until there are thousands of them in the longest animation.
void TestCanvas::longestHistory()
{
    AnimationState state;
    state.frames.assign(193, {1, 1, QBitArray(949)});
    AnimationHistory history(state);
    constexpr int kStrokes = 12000;
    for (int i = 0; i < kStrokes; ++i) {
        state.frames[static_cast<std::size_t>(i % 193)].cells.toggleBit(i % 949);
        history.push(state);
    }
    int undone = 0;
    for (; history.canUndo(); ++undone)
        history.undo();
    QVERIFY2(undone > 5000 && undone < kStrokes, qPrintable(QString::number(undone)));
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
    for (const auto &[key, open] :
         {std::pair(Qt::Key_Home, 1), {Qt::Key_Space, 0}, {Qt::Key_Right, 0}, {Qt::Key_Enter, 1}}) {
        QTest::keyClick(page->focusWidget(), key);
        QCOMPARE(page->tabs()->currentIndex(), open); // arrows only move
    }
    QTest::keyClick(page->focusWidget(), Qt::Key_Tab);
    MatrixEditor *editor = page->tabs()->currentEditor();
    QCOMPARE(page->focusWidget(), editor);
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(litCells(*editor), 1);
    for (const auto &[redo, shift] : {std::pair{Qt::Key_Y, Qt::NoModifier}, {Qt::Key_Z, Qt::ShiftModifier}}) {
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(litCells(*editor), 0);
        QTest::keyClick(editor, redo, Qt::ControlModifier | shift);
        QCOMPARE(litCells(*editor), 1);
    }
}

/// A press at the edge of what is seen draws where the pen is; a key brings the cell that it goes to into sight.
void TestCanvas::onlyKeysScroll()
{
    const auto page = makePage(1);
    page->tabs()->setCellSize(20);
    QCoreApplication::processEvents();
    MatrixEditor *editor = page->tabs()->currentEditor();
    const QPoint pen(editor->parentWidget()->width() - 3, 205);
    QVERIFY(editor->width() > pen.x() + 100);
    QTest::mousePress(editor, Qt::LeftButton, {}, pen);
    QCOMPARE(editor->x(), 0);
    QTest::mouseRelease(editor, Qt::LeftButton, {}, pen);
    QCOMPARE(litCells(*editor), 1);
    QTest::keyClick(editor, Qt::Key_Right);
    QVERIFY(editor->x() < 0);
    QTest::mousePress(editor, Qt::LeftButton, {}, pen); // and the page goes before the button is released
}

/// 720 lines leave the page 600, however much it wants; the tools were squeezed, and lay over each other.
void TestCanvas::toolsFitALowPage()
{
    QWidget window;
    const auto page = makePage();
    page->setParent(&window);
    page->show();
    window.show();
    for (const int height : {680, 600}) {
        page->setGeometry(0, 0, 1000, height);
        QCoreApplication::processEvents();
        int lowest = 0; // by the order in which they were made, row by row
        for (const char *tool : {"Add Frame", "Delete Frame", "Undo", "Preview", "Save Animate", "Export Animate",
                                 "Import Aligned", "Cancel"}) {
            const QRect place(page->button(tool)->mapTo(page.get(), QPoint()), page->button(tool)->size());
            QVERIFY2(place.top() - lowest > 8, tool); // the gap between what belongs together
            lowest = place.bottom();
        }
        QVERIFY(lowest < height);
    }
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

    const QSignalSpy edited(editor, &MatrixEditor::edited);
    QTest::mousePress(editor, Qt::LeftButton, {}, middle(*editor, {0, 5}));
    page->togglePreview(); // the open frame, then from the first on, in the open editor
    m_desk->clock.advance(100ms);
    QCOMPARE(colorOf(0), lit);
    QCOMPARE(colorOf(1), dark);
    QCOMPARE(edited.count(), 1); // a stroke ends here
    draw(*page, 9);              // nothing is drawn into a frame that only passes by
    m_desk->clock.advance(100ms);
    QCOMPARE(colorOf(0).name(), dark.name()); // the onion skin waits as well
    QCOMPARE(colorOf(1), lit);
    page->findChild<SliderWidget *>("Frames/s")->setValue(20);
    m_desk->clock.advance(150ms); // the frame that is on keeps its time, the next has half of it
    QCOMPARE(colorOf(1), lit);
    page->addFrame();
    page->togglePreview();
    page->hide(); // nobody sees it
    m_desk->clock.advance(1s);
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0));
    QCOMPARE(page->tabs()->editor(1)->frame().digits(), "010001" + QByteArray(943, '0'));
}

void TestCanvas::eachFormHasItsAnimation()
{
    const auto page = makePage();
    draw(*page, 3);
    page->addFrame();
    const QByteArrayList before = page->tabs()->digits();
    useForm(1);
    page->updateInterfaceData();
    QCOMPARE(page->tabs()->digits(), QByteArrayList{QByteArray(1050, '0')});
    QVERIFY(qobject_cast<LEDMatrixWidgetRect *>(page->tabs()->editor(0)));
    useForm(0);
    page->updateInterfaceData();
    QCOMPARE(page->tabs()->digits(), before);
    useForm(7); // none
    page->updateInterfaceData();
    page->addFrame();
    page->duplicateFrame();
    page->cleanFrame();
    QCOMPARE(page->tabs()->count(), 0);
}

void TestCanvas::shownAgain()
{
    const QByteArray other(949, '1');
    connectDevice();
    for (const auto &[form, content, frames, shownIn] : // -1: nowhere
         {std::tuple(0, other.repeated(3), 3, 0),
          {1, other.repeated(3), 3, 0},
          {1, QByteArray(1050 * 194, '1'), 1, -1}, // more than can be drawn
          {0, other + "1", 1, -1},
          {0, QByteArray(949, 'x'), 1, -1},
          {1, QByteArray(1050 * 193, '1'), 193, 1}}) {
        QVERIFY(writeText(QLatin1String(kDataFile), content));
        const auto page = makePage(form);
        QCOMPARE(page->work()->notice().isEmpty(), shownIn >= 0);
        QVERIFY(page->dataFile().isEmpty() && !page->button("Write Animate")->isEnabled());
        useForm(shownIn >= 0 ? shownIn : form);
        page->updateInterfaceData();
        QCOMPARE(page->tabs()->count(), frames);
        if (shownIn >= 0)
            QCOMPARE(page->tabs()->digits().join(), content);
        QVERIFY(page->mayLeave());
        QCOMPARE(page->timesAsked, 0);
        QCOMPARE(readText(QLatin1String(kDataFile)), content);
        if (frames != 193)
            continue;
        const QString count = page->findChild<QLabel *>(QStringLiteral("note"))->text();
        QCOMPARE(count, QStringLiteral("Frames: 193, of which the accessory takes 173"));
        QVERIFY(finish(*page, &AnsweredCanvas::saveAnimate) && finish(*page, &AnsweredCanvas::writeAnimate));
        QCOMPARE(page->work()->notice(), QStringLiteral("The accessory takes 173 of the 193 frames."));
    }
}

void TestCanvas::leaving()
{
    using Leaving = AnsweredCanvas::Leaving;
    const auto page = makePage();
    int asked = 0;
    page->addFrame(); // dark: nothing is lost
    QVERIFY(page->mayLeave());
    draw(*page, 0);
    QVERIFY(!page->mayLeave() && page->timesAsked == ++asked);
    page->undo();
    QVERIFY(page->mayLeave());
    page->redo();
    page->leaving = Leaving::DoNotSave;
    QVERIFY(page->mayLeave() && page->timesAsked == ++asked);
    QVERIFY(!QFile::exists(QLatin1String(kDataFile)));
    page->leaving = Leaving::Save;
    {
        const FullDisk full(1000);
        QVERIFY(!page->mayLeave() && page->timesAsked == ++asked);
        QCOMPARE(page->warnings.count(), 1);
    }
    useForm(1); // two drawings, one data file: the one that is seen gets it
    page->updateInterfaceData();
    draw(*page, 2);
    QVERIFY(!page->mayLeave() && page->timesAsked == ++asked); // no file was named for the other
    page->fileName = QStringLiteral("other.csv");
    QVERIFY(page->mayLeave() && page->timesAsked == ++asked);
    QCOMPARE(readText(page->fileName), QByteArray(949, '0') + "1" + QByteArray(948, '0'));
    QCOMPARE(readText(QLatin1String(kDataFile)), "001" + QByteArray(1047, '0'));
    QVERIFY(page->mayLeave() && page->timesAsked == asked);
}

QTEST_MAIN(TestCanvas)
#include "tst_canvas.moc"
