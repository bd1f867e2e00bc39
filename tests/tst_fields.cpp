#include <cmath>
#include <functional>
#include <memory>

#include <QtTest>
#include <QtWidgets>

#include "controls/focusring.h"
#include "controls/palette.h"
#include "controls/sliderwidget.h"
#include "controls/wheeleventfilter.h"
#include "controls/zelmardialog.h"
#include "controls/zelmarkeysequenceedit.h"
#include "support/controlevents.h"
#include "support/datarow.h"

namespace {
SliderWidget *laidOutSlider(Said &said)
{
    auto *widget = new SliderWidget(QStringLiteral("Brightness"), 0, 100);
    QObject::connect(widget, &SliderWidget::sliderValueChanged, widget,
                     [&said](const QString &name, int value, bool released) {
                         said << QStringLiteral("%1 %2 %3").arg(name).arg(value).arg(released ? "end" : "step");
                     });
    QObject::connect(widget, &SliderWidget::holdLost, widget, [&said](const QString &name) { said << name + " lost"; });
    widget->resize(400, 30);
    widget->layout()->activate();
    return widget;
}

/// The point of the slider's groove that stands for the value 0..100.
QPoint pointOf(const QSlider *slider, int value)
{
    return QPoint(10 + (slider->width() - 20) * value / 100, slider->height() / 2);
}

/// How far apart two colours are in lightness, from 1 to 21.
double contrast(QColor front, QColor behind)
{
    const auto light = [](const QColor &color) {
        const auto part = [](float level) {
            return level <= 0.04045f ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF()) + 0.05;
    };
    const double ratio = light(front) / light(behind);
    return std::max(ratio, 1 / ratio);
}

/// The outline of a picture, in the middle of its left side.
QRgb outline(const char *name)
{
    const QImage image(QFINDTESTDATA(QStringLiteral("../resource/img/%1.png").arg(QLatin1String(name))));
    return image.isNull() ? 0 : image.pixel(0, image.height() / 2) | 0xff000000;
}
} // namespace

class TestFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sliderReports_data();
    void sliderReports();
    void sliderIsDownDuringAKeyStep();
    void unknownValueEndsWithTheFirstOne();
    void wheelScrollsThePage();
    void focusOutlineIsForTheKeyboard();
    void keyFieldCaptures();
    void keyFieldEndsAfterOneCombination();
    void emptyKeyFieldSaysSo();
    void dialogIsAcceptedByItsButton();
    void coloursCanBeTold();
    void coloursHaveNames();
};

using SliderAction = std::function<void(SliderWidget *)>;

/// The slider stands at 50, here and in the rows below.
static void addMouseRows()
{
    QTest::newRow("groove click jumps") << SliderAction([](SliderWidget *widget) {
        QTest::mouseClick(widget->slider(), Qt::LeftButton, {}, pointOf(widget->slider(), 80));
    }) << Said{"Brightness 80 step", "Brightness 80 end"};
    QTest::newRow("drag keeps hold where it took it") << SliderAction([](SliderWidget *widget) {
        const QPoint grab = pointOf(widget->slider(), 50) + QPoint(6, 0);
        QTest::mousePress(widget->slider(), Qt::LeftButton, {}, grab);
        const QPoint to = pointOf(widget->slider(), 70) + QPoint(6, 0);
        QMouseEvent move(QEvent::MouseMove, to, to, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(widget->slider(), &move);
        QTest::mouseRelease(widget->slider(), Qt::LeftButton, {}, to);
    }) << Said{"Brightness 70 step", "Brightness 70 end"};
    QTest::newRow("set by the program") << SliderAction([](SliderWidget *widget) {
        widget->setValue(20);
        widget->setValue(20);
    }) << Said{"Brightness 20 step"};
    QTest::newRow("double click is two presses") << SliderAction([](SliderWidget *widget) {
        const QPoint point = pointOf(widget->slider(), 50);
        QTest::mouseClick(widget->slider(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(widget->slider(), Qt::LeftButton, {}, point);
        QTest::mouseRelease(widget->slider(), Qt::LeftButton, {}, point);
    }) << Said{"Brightness 50 end", "Brightness 50 end"};
    QTest::newRow("disabled in mid-drag") << SliderAction([](SliderWidget *widget) {
        QTest::mousePress(widget->slider(), Qt::LeftButton, {}, pointOf(widget->slider(), 30));
        widget->setEnabled(false);
    }) << Said{"Brightness 30 step", "Brightness lost"};
    QTest::newRow("hidden in mid-drag") << SliderAction([](SliderWidget *widget) {
        widget->show();
        QTest::mousePress(widget->slider(), Qt::LeftButton, {}, pointOf(widget->slider(), 30));
        widget->hide();
        QTest::mouseRelease(widget->slider(), Qt::LeftButton, {}, pointOf(widget->slider(), 60));
    }) << Said{"Brightness 30 step", "Brightness lost"};
}

static void addKeyRows()
{
    QTest::newRow("held key ends once") << SliderAction([](SliderWidget *widget) {
        QTest::keyPress(widget->slider(), Qt::Key_Left);
        for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
            QKeyEvent repeated(type, Qt::Key_Left, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(widget->slider(), &repeated);
        }
        QTest::keyRelease(widget->slider(), Qt::Key_Left);
    }) << Said{"Brightness 49 step", "Brightness 48 step", "Brightness 48 end"};
    QTest::newRow("key held while the focus goes") << SliderAction([](SliderWidget *widget) {
        QTest::keyPress(widget->slider(), Qt::Key_Right);
        sendFocus(widget->slider(), QEvent::FocusOut, Qt::OtherFocusReason);
        QTest::keyRelease(widget->slider(), Qt::Key_Right);
    }) << Said{"Brightness 51 step", "Brightness 51 end"};
    QTest::newRow("disabled while a key holds it") << SliderAction([](SliderWidget *widget) {
        widget->show();
        widget->activateWindow();
        widget->slider()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(widget) && widget->slider()->hasFocus());
        QTest::keyPress(widget->slider(), Qt::Key_Right);
        widget->setEnabled(false);
    }) << Said{"Brightness 51 step", "Brightness lost"};
    QTest::newRow("taken away from a key that stays down") << SliderAction([](SliderWidget *widget) {
        QTest::keyPress(widget->slider(), Qt::Key_Right);
        widget->slider()->loseHold();
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(widget->slider(), &repeated);
        QTest::keyRelease(widget->slider(), Qt::Key_Right);
    }) << Said{"Brightness 51 step", "Brightness lost"};
}

void TestFields::sliderReports_data()
{
    columns<SliderAction, Said>("action", "expected");
    addMouseRows();
    addKeyRows();
}

void TestFields::sliderReports()
{
    const auto [action, expected] = fetch<SliderAction, Said>();
    Said said;
    const std::unique_ptr<SliderWidget> widget(laidOutSlider(said));
    widget->setValue(50);
    said.clear();
    action(widget.get());
    QCOMPARE(said, expected);
    QCOMPARE(widget->valueLabel()->text(), QString::number(widget->value()));
}

void TestFields::sliderIsDownDuringAKeyStep()
{
    Said said;
    const std::unique_ptr<SliderWidget> widget(laidOutSlider(said));
    bool downAtStep = false;
    connect(widget->slider(), &QSlider::valueChanged, this, [&] { downAtStep = widget->slider()->isSliderDown(); });
    QTest::keyClick(widget->slider(), Qt::Key_PageUp);
    QVERIFY(downAtStep);
    QVERIFY(!widget->slider()->isSliderDown());
    widget->setValue(3);
    QVERIFY(!downAtStep);
}

void TestFields::unknownValueEndsWithTheFirstOne()
{
    Said said;
    const std::unique_ptr<SliderWidget> widget(laidOutSlider(said));
    widget->setUnknown(true);
    QCOMPARE(widget->valueLabel()->text(), QStringLiteral("–"));
    // The value that the slider stands at anyway is news as well.
    widget->setValue(0);
    QVERIFY(!widget->isUnknown());
    QCOMPARE(widget->valueLabel()->text(), QStringLiteral("0"));
    QVERIFY(said.isEmpty());
    widget->setUnknown(true);
    QTest::keyClick(widget->slider(), Qt::Key_Right);
    QCOMPARE(widget->valueLabel()->text(), QStringLiteral("1"));
}

void TestFields::wheelScrollsThePage()
{
    QScrollArea area;
    auto *page = new QWidget;
    page->setFixedSize(200, 2000);
    area.setWidget(page);
    area.resize(220, 200);
    auto *line = new NoWheelSlider(page);
    auto *box = new QComboBox(page);
    box->addItems({"a", "b", "c"});
    box->setCurrentIndex(1);
    WheelEventFilter filter;
    box->installEventFilter(&filter);
    line->setValue(50);
    area.show();

    for (QWidget *under : {static_cast<QWidget *>(line), static_cast<QWidget *>(box)}) {
        area.verticalScrollBar()->setValue(0);
        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Only what seems to come from the window system travels on to parents.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(under, &wheel);
        QCOMPARE(line->value(), 50);
        QCOMPARE(box->currentIndex(), 1);
        QVERIFY(area.verticalScrollBar()->value() > 0);
    }
}

void TestFields::focusOutlineIsForTheKeyboard()
{
    for (const auto &[reasons, shown] : {std::pair(QList{Qt::TabFocusReason}, true),
                                         {{Qt::BacktabFocusReason}, true},
                                         {{Qt::TabFocusReason, Qt::MouseFocusReason}, false},
                                         {{Qt::TabFocusReason, Qt::ActiveWindowFocusReason}, true}, // as before
                                         {{Qt::MouseFocusReason, Qt::ActiveWindowFocusReason}, false}}) {
        FocusRing ring;
        for (const Qt::FocusReason reason : reasons) {
            const QFocusEvent out(QEvent::FocusOut, reason);
            ring.follow(&out);
            QVERIFY(!ring.isShown());
            const QFocusEvent in(QEvent::FocusIn, reason);
            ring.follow(&in);
        }
        QCOMPARE(ring.isShown(), shown);
    }
}

void TestFields::keyFieldCaptures()
{
    for (const auto &[key, modifiers, text] :
         {std::tuple(Qt::Key_A, Qt::KeyboardModifiers(Qt::ControlModifier), "Ctrl+A"),
          {Qt::Key_0, Qt::AltModifier, "Alt+0"},
          {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "Ctrl+Shift+Z"},
          {Qt::Key_9, Qt::AltModifier, "Alt+9"},
          {Qt::Key_A, Qt::ShiftModifier, "Alt+9"}, // Shift alone
          {Qt::Key_A, {}, "Alt+9"},
          {Qt::Key_5, Qt::ControlModifier | Qt::KeypadModifier, "Alt+9"},
          {Qt::Key_F1, Qt::ControlModifier, "Alt+9"},
          {Qt::Key_Control, Qt::ControlModifier, "Alt+9"}, // a modifier alone
          {Qt::Key_Backspace, {}, ""}}) {
        ZelmarKeySequenceEdit field;
        field.setKeySequence(QKeySequence(Qt::ALT | Qt::Key_9));
        QTest::keyPress(&field, key, modifiers);
        QCOMPARE(field.text(), QString(text));
        QCOMPARE(field.findChild<QLineEdit *>()->text(), QString(text));
    }
}

void TestFields::keyFieldEndsAfterOneCombination()
{
    ZelmarKeySequenceEdit field;
    QSignalSpy changed(&field, &QKeySequenceEdit::keySequenceChanged);
    QSignalSpy finished(&field, &QKeySequenceEdit::editingFinished);
    QTest::keyPress(&field, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(finished.count(), 1);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier, QString(), true);
    QApplication::sendEvent(&field, &held);
    QTest::keyRelease(&field, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(finished.count(), 1);
    // A second combination replaces the first instead of joining it.
    QTest::keyPress(&field, Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(field.keySequence(), QKeySequence(Qt::CTRL | Qt::Key_B));
    QCOMPARE(finished.count(), 2);
    // Nothing is captured when the focus goes, whatever takes it; the base class would tell of an end once more.
    for (const Qt::FocusReason reason : {Qt::TabFocusReason, Qt::ActiveWindowFocusReason, Qt::PopupFocusReason})
        sendFocus(&field, QEvent::FocusOut, reason);
    QCOMPARE(changed.count() + finished.count(), 4);
}

void TestFields::emptyKeyFieldSaysSo()
{
    ZelmarKeySequenceEdit field;
    auto *line = field.findChild<QLineEdit *>();
    QCOMPARE(line->placeholderText(), QStringLiteral("NA"));
    line->setText(QStringLiteral("NA"));
    sendFocus(line, QEvent::FocusIn, Qt::MouseFocusReason);
    QCOMPARE(line->placeholderText(), QString());
    line->clear();
    sendFocus(line, QEvent::FocusOut, Qt::MouseFocusReason);
    QCOMPARE(line->placeholderText(), QStringLiteral("NA"));
    // Emptied by the page, the base class puts a hint of its own there until the field is painted; the focus hides
    // none.
    field.move(50, 50); // from under the mouse
    field.show();
    const QRect inside = field.rect().adjusted(3, 3, -3, -3);
    const QImage empty = field.grab(inside).toImage();
    field.activateWindow();
    QTRY_VERIFY(field.hasFocus());
    field.setKeySequence(QKeySequence(Qt::CTRL | Qt::Key_C));
    QVERIFY(field.grab(inside).toImage() != empty);
    field.clear();
    QVERIFY(field.grab(inside).toImage() == empty);
    QCOMPARE(line->palette().color(QPalette::PlaceholderText), QColor(Palette::kHint));
    QCOMPARE(line->placeholderText(), QStringLiteral("NA"));
    QMimeData text; // nothing but keys changes what it says
    text.setText(QStringLiteral("x"));
    QDragEnterEvent dragged({}, Qt::CopyAction, &text, Qt::LeftButton, {});
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {}, field.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(line, &dragged);
    QCoreApplication::sendEvent(line, &menu);
    QVERIFY(!dragged.isAccepted() && !QApplication::activePopupWidget());
}

void TestFields::dialogIsAcceptedByItsButton()
{
    ZelmarDialog dialog;
    dialog.findChild<QPushButton *>()->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestFields::coloursCanBeTold()
{
    using namespace Palette;
    using Colours = QList<QRgb>;
    const Colours pages = {kPanel, kPanelEnd, kCard, kRow, kFloating};
    const Colours grounds = pages + Colours{kGround, kWell, kBox, kTip, kField};
    Colours pictures;
    for (const char *name : {"option/small_normal", "option/big_hover", "option/wide_normal", "icontext/normal",
                             "switch_check", "switch_uncheck", "picker/frame", "basicSetting/shortcutKey/off_normal",
                             "basicSetting/servicesSetting/upgrade_normal"})
        pictures.append(outline(name));
    const std::tuple<Colours, Colours, double> pairs[] = {
        {{kText, kSoft, kDim, kHint, kMint, kBright, kSignal}, grounds, 4.5},
        {{kError}, pages + Colours{kGround, kWell}, 4.5},
        {{kText, kBright}, {kSelected}, 4.5},
        {{kText}, {kProgress}, 4.5},
        {{kInk}, {kMint, kBright, kDeep, kSignal}, 4.5},
        {{kEdge, kHoveredEdge}, pages + Colours{kBox, kField}, 3},
        {{kTrack}, {kWell, kPanel, kPanelEnd}, 3},
        {{kGroove, kScroll}, pages, 3},
        {{kUnlit}, {kPanel, kPanelEnd, kCard, kMint}, 3},
        {{kProgress}, {kCard}, 3},
        {{0xff000000}, {kRestingPlate}, 4.5},
        {pictures, {kPanel, kPanelEnd, kRow}, 3},
    };
    for (const auto &[fronts, behinds, least] : pairs) {
        for (const QRgb front : fronts) {
            for (const QRgb behind : behinds)
                QVERIFY2(contrast(front, behind) >= least,
                         qPrintable(QColor(front).name() + " on " + QColor(behind).name()));
        }
    }
}

void TestFields::coloursHaveNames()
{
    QFile sheet(QFINDTESTDATA("../resource/css/page_scene_mode.css"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QString style = QString::fromUtf8(sheet.readAll());
    QVERIFY(!style.contains(QRegularExpression("#[0-9a-f]{6}"))); // each colour by its name
    QVERIFY(!Palette::styled(style).contains(u'@'));
    // The texts of boxes have always had colours of their own.
    const QStringList own = {"messagebox.cpp"};
    for (const char *folder : {"controls", "page", "tray"}) {
        QDirIterator files(QFileInfo(sheet.fileName()).path() + "/../../src/" + folder, {"*.cpp"}, QDir::Files,
                           QDirIterator::Subdirectories);
        QVERIFY(files.hasNext());
        while (files.hasNext()) {
            QFile source(files.next());
            QVERIFY(source.open(QIODevice::ReadOnly));
            const bool isClean = !source.readAll().contains("color: #");
            QVERIFY2(isClean || own.contains(files.fileName()), qPrintable(files.fileName()));
        }
    }
}

QTEST_MAIN(TestFields)
#include "tst_fields.moc"
