#include <QtTest>
#include <QtWidgets>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "following/followlist.h"
#include "page/engine/pagehead.h"
#include "support/windowfixture.h"
#include "tray/traypanel.h"
#include "tray/traypanelopener.h"

using namespace std::chrono_literals;

namespace {

/// What a layout leaves free; that of a page's edge without the line around it.
QList<int> gapsOf(const QLayout *layout)
{
    const int border = layout->contentsMargins().top() == metrics::kPageBorder ? metrics::kPageBorder : 0;
    const QMargins margins = layout->contentsMargins() - QMargins(border, border, border, 0);
    QList<int> gaps = {margins.left(), margins.top(), margins.right(), margins.bottom()};
    if (const auto *grid = qobject_cast<const QGridLayout *>(layout))
        gaps << grid->horizontalSpacing() << grid->verticalSpacing();
    else
        gaps << layout->spacing();
    for (int i = 0; i < layout->count(); ++i) {
        if (layout->itemAt(i)->spacerItem())
            gaps << layout->itemAt(i)->sizeHint().width() << layout->itemAt(i)->sizeHint().height();
        if (layout->itemAt(i)->layout())
            gaps << gapsOf(layout->itemAt(i)->layout());
    }
    return gaps;
}

/// Something to press or to type into that has no picture of its own, whose size that would be.
bool isPlainField(const QWidget *widget)
{
    const auto *button = qobject_cast<const QPushButton *>(widget);
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    if (button)
        return button->icon().isNull() && !button->styleSheet().contains(QStringLiteral("_normal.png"));
    const bool isInner = qobject_cast<const QAbstractSpinBox *>(widget->parentWidget());
    return (line && line->isEnabled() && !isInner) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QKeySequenceEdit *>(widget);
}

/// With what it is in, down to what has a name of its own.
QString nameOf(const QWidget *widget)
{
    const QString name = QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName();
    const QWidget *around = widget->parentWidget();
    return widget->objectName().isEmpty() && around ? nameOf(around) + QStringLiteral(" > ") + name : name;
}

/// Layouts with a gap off the grid. A page's head stands on its baselines instead.
void addOffGrid(QWidget *window, QSet<QString> &found)
{
    const auto isOff = [](int gap) { return gap % metrics::kLineGap != 0; };
    QWidgetList all = window->findChildren<QWidget *>();
    all.append(window);
    for (const QWidget *widget : std::as_const(all)) {
        const bool isHead =
            dynamic_cast<const PageHead *>(widget) || dynamic_cast<const PageHead *>(widget->parentWidget());
        if (widget->isVisible() && widget->layout() && !isHead && std::ranges::any_of(gapsOf(widget->layout()), isOff))
            found.insert(nameOf(widget) + QStringLiteral(": gaps"));
    }
}

void addOtherHeights(QWidget *window, QSet<QString> &found)
{
    QCoreApplication::processEvents(); // layouts wait for them
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible() && isPlainField(widget) && widget->height() != metrics::kControlHeight)
            found.insert(QStringLiteral("%1: %2 high").arg(nameOf(widget)).arg(widget->height()));
    }
}

} // namespace

/// The measures that all pages share.
class TestMeasures : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void gapsAndHeightsAreShared();
};

void TestMeasures::gapsAndHeightsAreShared()
{
    dressApplication();
    start(10, 0, [] { saveFollowList({{QStringLiteral("C:/Games/game.exe"), 1}}); });
    for (const auto &[page, button] :
         {std::pair(PageId::ShortcutKey, "pushButton_2"), {PageId::LedCanvas, "Add Frame"}})
        m_window->page(page)->widget()->findChild<QPushButton *>(QLatin1String(button))->click();
    QSet<QString> found;
    const auto look = [&found](QWidget *window) {
        addOffGrid(window, found);
        addOtherHeights(window, found);
    };
    onEveryPage([&](QWidget *) { look(m_window.get()); });
    m_desk->desk.unplug(0);
    m_desk->clock.advance(300ms);
    QVERIFY(m_window->findChild<QPushButton *>(QStringLiteral("retry"))->isVisible());
    look(m_window.get());
    m_window->trayPanel()->press({});
    look(m_window->trayPanel()->panel());
    QColorDialog colours; // the gaps within it are the toolkit's own
    colours.setOption(QColorDialog::DontUseNativeDialog);
    colours.show();
    addOtherHeights(&colours, found);
    QStringList sorted = found.values();
    sorted.sort();
    QVERIFY2(sorted.isEmpty(), qPrintable(sorted.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestMeasures)
#include "tst_measures.moc"
