#include <functional>
#include <memory>

#include <QButtonGroup>
#include <QHelpEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolTip>
#include <QtTest>

#include "controls/captionlabel.h"
#include "controls/captions.h"
#include "controls/colorpicker.h"
#include "controls/colorselecter.h"
#include "controls/focusgroup.h"
#include "controls/icontextbutton.h"
#include "controls/icontextbutton2.h"
#include "controls/lefttabbutton.h"
#include "controls/pictures.h"
#include "controls/switchbutton.h"
#include "controls/switchbuttonrectangle.h"
#include "support/controlevents.h"
#include "support/datarow.h"

namespace {
const QString kIcon = QStringLiteral(":/no/such/icon");

/// A picker whose user always answers the same.
class AnsweredPicker : public ColorPicker
{
public:
    explicit AnsweredPicker(const QColor &answer) : ColorPicker(nullptr), m_answer(answer) {}
    int asked = 0;

protected:
    QColor askColor() override
    {
        ++asked;
        return m_answer;
    }

private:
    QColor m_answer;
};

/// Makes a control that writes its signals into the list.
using Maker = std::function<QWidget *(Said &)>;
} // namespace

class TestControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchFollowsTheHalfThatWasPressed();
    void keyboardPressesAsTheMouseDoes_data();
    void keyboardPressesAsTheMouseDoes();
    void leftTabIgnoresWhatItIsNotEnabledFor();
    void groupIsOneTabStop();
    void hoverEndsWithTheWindow();
    void swatchesAnswerMouseAndKeys();
    void pickerTakesOnlyAnAnswer();
    void captionFits();
    void picturesAreSharp();
    void assistiveSoftwareSeesAndPresses();
};

void TestControls::switchFollowsTheHalfThatWasPressed()
{
    // The exact centre switches off, the first pixel of the right half on.
    for (const auto &[before, x, after] :
         {std::tuple(false, 10, false), {true, 110, true}, {true, 60, false}, {false, 61, true}}) {
        SwitchButton button;
        button.setChecked(before);
        QSignalSpy spy(&button, &SwitchButton::sigChecked);
        QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(x, 19));
        QCOMPARE(button.isChecked(), after);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().first().toBool(), after);
    }
}

void TestControls::keyboardPressesAsTheMouseDoes_data()
{
    columns<Maker, QPoint, Said>("make", "point", "expected");
    const auto word = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };

    // Every control is pressed twice, so toggles come back and the others stay.
    QTest::newRow("IconTextButton toggles") << Maker([word](Said &said) {
        auto *button = new IconTextButton(kIcon, QStringLiteral("Ruler"));
        connect(button, &IconTextButton::clicked, button, [&said, word](bool on) { said << word(on); });
        return button;
    }) << QPoint(45, 40) << Said{"on", "off"};
    QTest::newRow("IconTextButton2 stays checked") << Maker([word](Said &said) {
        auto *button = new IconTextButton2(kIcon, kIcon, QStringLiteral("Ruler"));
        connect(button, &IconTextButton2::clicked, button,
                [&said, word, button] { said << word(button->isChecked()); });
        return button;
    }) << QPoint(20, 20) << Said{"on", "on"};
    QTest::newRow("LeftTabButton stays checked") << Maker([word](Said &said) {
        auto *button = new LeftTabButton(kIcon, QStringLiteral("Movie Mode"));
        connect(button, &LeftTabButton::clicked, button, [&said, word, button] { said << word(button->isChecked()); });
        return button;
    }) << QPoint(20, 20) << Said{"on", "on"};
    QTest::newRow("SwitchButtonRectangle toggles") << Maker([word](Said &said) {
        auto *button = new SwitchButtonRectangle;
        connect(button, &SwitchButtonRectangle::sigClicked, button, [&said, word](bool on) { said << word(on); });
        return button;
    }) << QPoint(10, 10) << Said{"on", "off"};
    QTest::newRow("ColorSelecter selects") << Maker([](Said &said) {
        auto *row = new ColorSelecter({kIcon, kIcon, kIcon});
        row->resize(row->sizeHint());
        row->grab(); // lays the swatches out
        sendFocus(row, QEvent::FocusIn, Qt::TabFocusReason);
        connect(row, &ColorSelecter::sigClicked, row, [&said](int index) { said << QString::number(index); });
        return row;
    }) << QPoint(22, 20) << Said{"0", "0"};
    QTest::newRow("ColorPicker asks") << Maker([](Said &said) {
        auto *picker = new AnsweredPicker(Qt::red);
        connect(picker, &ColorPicker::sigColorChanged, picker, [&said](const QColor &color) { said << color.name(); });
        return picker;
    }) << QPoint(28, 17) << Said{"#ff0000", "#ff0000"};
}

void TestControls::keyboardPressesAsTheMouseDoes()
{
    const auto [make, point, expected] = fetch<Maker, QPoint, Said>();

    Said byMouse;
    const std::unique_ptr<QWidget> clicked(make(byMouse));
    QTest::mouseClick(clicked.get(), Qt::LeftButton, {}, point);
    QTest::mouseClick(clicked.get(), Qt::LeftButton, {}, point);
    QTest::mouseClick(clicked.get(), Qt::RightButton, {}, point);
    QCOMPARE(byMouse, expected);

    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Said byKey;
        const std::unique_ptr<QWidget> typed(make(byKey));
        QVERIFY(typed->focusPolicy() & Qt::TabFocus);
        QTest::keyClick(typed.get(), key);
        QTest::keyClick(typed.get(), key);
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(typed.get(), &held);
        QCOMPARE(byKey, expected);
    }

    // The switch has no single press point: the keys name the half.
    SwitchButton button;
    QSignalSpy spy(&button, &SwitchButton::sigChecked);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Space})
        QTest::keyClick(&button, key);
    QList<bool> said;
    for (const QVariantList &arguments : spy)
        said << arguments.first().toBool();
    QCOMPARE(said, (QList<bool>{true, true, false, true}));
}

void TestControls::leftTabIgnoresWhatItIsNotEnabledFor()
{
    LeftTabButton button(kIcon, QStringLiteral("Movie Mode"));
    QSignalSpy spy(&button, &LeftTabButton::clicked);
    button.setSelectable(false);
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    button.setChecked(true);
    QVERIFY(!button.isChecked());
    QCOMPARE(spy.count(), 0);

    button.setSelectable(true);
    button.setChecked(true);
    button.setSelectable(false);
    button.setChecked(false);
    QVERIFY(button.isChecked());
    QCOMPARE(spy.count(), 0);
}

/// Four members of a group, painted controls or the toolkit's own.
static std::vector<QWidget *> makeMembers(FocusGroup *group, bool isPainted, QWidget *bar)
{
    auto *exclusive = new QButtonGroup(bar);
    std::vector<QWidget *> members;
    for (int i = 0; i < 4; ++i) {
        auto *button = isPainted ? nullptr : new QPushButton(bar);
        members.push_back(button ? static_cast<QWidget *>(button) : new LeftTabButton(kIcon, {}, bar));
        if (button) {
            button->setCheckable(true);
            exclusive->addButton(button);
        }
        group->add(members.back());
    }
    return members;
}

void TestControls::groupIsOneTabStop()
{
    QWidget window;
    for (const bool isPainted : {true, false}) {
        auto *bar = new QWidget(&window);
        const std::vector<QWidget *> members = makeMembers(new FocusGroup(bar), isPainted, bar);
        const auto is = [&members](bool (*fits)(const QWidget *)) {
            QString found;
            for (std::size_t i = 0; i < members.size(); ++i)
                found += fits(members[i]) ? QString::number(i) : QString();
            return found;
        };
        const auto stops = [&is] { return is([](const QWidget *m) { return bool(m->focusPolicy() & Qt::TabFocus); }); };
        const auto chosen = [&is] { return is([](const QWidget *m) { return checkedStateOf(m).value_or(false); }); };
        window.show();
        bar->show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(stops(), QStringLiteral("0"));
        QTest::mouseClick(members[2], Qt::LeftButton);
        window.setFocus();
        isPainted ? static_cast<LeftTabButton *>(members[1])->setSelectable(false) : members[1]->setEnabled(false);
        QCOMPARE(stops(), QStringLiteral("2"));
        members[2]->setFocus(Qt::TabFocusReason);
        for (const auto &[key, focused] : {std::pair(Qt::Key_Down, "3"),
                                           {Qt::Key_Right, "3"},
                                           {Qt::Key_Home, "0"},
                                           {Qt::Key_Left, "0"},
                                           {Qt::Key_Right, "2"},
                                           {Qt::Key_Up, "0"}}) {
            QTest::keyClick(window.focusWidget(), key);
            QCOMPARE(is([](const QWidget *m) { return m->hasFocus(); }), QLatin1String(focused));
            QCOMPARE(stops(), QLatin1String(focused));
            QCOMPARE(chosen(), QStringLiteral("2"));
        }
        window.setFocus();
        QCOMPARE(stops(), QStringLiteral("2"));
        members[2]->setEnabled(false);
        QCOMPARE(stops(), QStringLiteral("0"));
        delete bar;
    }
}

void TestControls::hoverEndsWithTheWindow()
{
    IconTextButton2 button(kIcon, kIcon, QStringLiteral("Ruler"));
    const auto frame = [&button] { return button.grab().toImage().pixelColor(button.width() / 2, 0); };
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    for (const QEvent::Type end : {QEvent::Leave, QEvent::WindowDeactivate}) {
        QApplication::sendEvent(&button, &enter);
        QCOMPARE(frame(), QColor(41, 47, 47));
        QEvent event(end);
        QApplication::sendEvent(&button, &event);
        QCOMPARE(frame(), QColor(31, 43, 43));
    }
}

void TestControls::swatchesAnswerMouseAndKeys()
{
    ColorSelecter row({kIcon, kIcon, kIcon});
    row.resize(300, 40);
    row.grab();
    QVERIFY(row.hasMouseTracking()); // else it would not hear of hovering
    QSignalSpy spy(&row, &ColorSelecter::sigClicked);
    const QRect second = row.swatchRect(1);
    QMouseEvent over(QEvent::MouseMove, second.center(), second.center(), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&row, &over);
    QCOMPARE(row.hoveredIndex(), 1);
    QTest::mousePress(&row, Qt::LeftButton, {}, QPoint(second.right() + 3, second.center().y()));
    QCOMPARE(row.selectedIndex(), -1);
    QTest::mousePress(&row, Qt::LeftButton, {}, second.center());
    QCOMPARE(row.selectedIndex(), 1);
    QCOMPARE(spy.count(), 1);

    // The arrow keys walk from the selected one and select nothing by themselves.
    sendFocus(&row, QEvent::FocusIn, Qt::TabFocusReason);
    QCOMPARE(row.hoveredIndex(), 1);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&row, Qt::Key_Right);
    QCOMPARE(row.hoveredIndex(), 2);
    QCOMPARE(row.selectedIndex(), 1);
    QTest::keyClick(&row, Qt::Key_Space);
    QCOMPARE(row.selectedIndex(), 2);
    sendFocus(&row, QEvent::FocusOut, Qt::TabFocusReason);
    QCOMPARE(row.hoveredIndex(), -1);

    // Too narrow for the usual step, the swatches still lie apart and inside.
    row.resize(114, 40);
    row.grab();
    QVERIFY(!row.swatchRect(0).intersects(row.swatchRect(1)));
    QVERIFY(row.rect().contains(row.swatchRect(2)));
}

void TestControls::pickerTakesOnlyAnAnswer()
{
    AnsweredPicker picker(QColor{}); // cancelled
    QCOMPARE(picker.accessibleDescription(), picker.color().name());
    picker.setColor(Qt::blue);
    QSignalSpy spy(&picker, &ColorPicker::sigColorChanged);
    QTest::mousePress(&picker, Qt::LeftButton, {}, QPoint(1, 1)); // on the frame
    QCOMPARE(picker.asked, 0);
    QTest::mousePress(&picker, Qt::LeftButton, {}, QPoint(28, 17));
    QCOMPARE(picker.asked, 1);
    QCOMPARE(picker.color(), QColor(Qt::blue));
    QCOMPARE(picker.accessibleDescription(), QStringLiteral("#0000ff"));
    QCOMPARE(spy.count(), 0);
}

void TestControls::captionFits()
{
    const QString text = QStringLiteral("A caption of some length");
    QFont font;
    font.setPixelSize(20);
    // Room enough; it is made smaller; then cut off as well.
    for (const auto &[percent, least, most, elided] :
         {std::tuple(100, 20, 20, false), {90, 15, 19, false}, {50, 15, 15, true}, {0, 15, 15, true}}) {
        const int width = (QFontMetrics(font).horizontalAdvance(text) * percent + 99) / 100;
        const FittedCaption fitted = fitCaption(text, QFont(), 20, width);
        QCOMPARE(fitted.elided, elided);
        QCOMPARE(std::clamp(fitted.font.pixelSize(), least, most), fitted.font.pixelSize());
        if (percent > 0)
            QVERIFY(QFontMetrics(fitted.font).horizontalAdvance(fitted.text) <= width);
        QCOMPARE(fitted.text == text, !elided);
    }
    CaptionLabel alone(QStringLiteral("Mode"), 20), beside(QStringLiteral("Mode"), 20), longer(text, 20);
    for (CaptionLabel *label : {&alone, &beside, &longer})
        label->setFixedSize(90, 30);
    shrinkTogether(std::vector{&beside, &longer});
    QVERIFY(beside.grab().toImage() != alone.grab().toImage() && longer.captionSize() == 15);
    QPixmap narrow(60, 20);
    QPainter painter(&narrow);
    Caption caption(20, text);
    caption.draw(painter, narrow.rect(), {}, Qt::black);
    QWidget owner;
    owner.show();
    const QHelpEvent hover(QEvent::ToolTip, {}, {});
    QVERIFY(caption.showToolTip(&hover, &owner) && QToolTip::text().contains(text));
}

void TestControls::picturesAreSharp()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.png"));
    QVERIFY(QImage(10, 10, QImage::Format_RGB32).save(path));
    QCOMPARE(Pictures::load(path, 2.0).size(), QSize(10, 10));
    QVERIFY(QImage(20, 20, QImage::Format_RGB32).save(folder.filePath(QStringLiteral("a@2x.png"))));
    QCOMPARE(Pictures::load(path, 1.0).size(), QSize(10, 10));
    const QPixmap doubled = Pictures::load(path, 1.5);
    QCOMPARE(doubled.size(), QSize(20, 20));
    QCOMPARE(doubled.devicePixelRatio(), 2.0);
    QVERIFY(Pictures::load(folder.filePath(QStringLiteral("b.png")), 2.0).isNull());
}

void TestControls::assistiveSoftwareSeesAndPresses()
{
    IconTextButton button(kIcon, QStringLiteral("Ruler"));
    QSignalSpy spy(&button, &IconTextButton::clicked);
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(seen);
    QCOMPARE(seen->role(), QAccessible::CheckBox);
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Ruler"));
    QVERIFY(!seen->state().checked);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.count(), 0); // whoever asked for it does not wait for what it does
    QCoreApplication::processEvents();
    QVERIFY(seen->state().checked);
    QCOMPARE(spy.count(), 1);
    button.setEnabled(false);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
