#include "controls/dress.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QEvent>
#include <QMenu>
#include <QPalette>
#include <QProxyStyle>
#include <QScreen>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"
#include "controls/tooltips.h"

namespace {

struct Role
{
    QPalette::ColorRole role;
    QRgb colour;
    QRgb disabled;
};

constexpr Role kRoles[] = {
    {QPalette::Window, Palette::kFloating, Palette::kFloating},
    {QPalette::WindowText, Palette::kSoft, Palette::kDisabled},
    {QPalette::Base, Palette::kCard, Palette::kCard},
    {QPalette::AlternateBase, Palette::kPanel, Palette::kPanel},
    {QPalette::Text, Palette::kSoft, Palette::kDisabled},
    {QPalette::PlaceholderText, Palette::kHint, Palette::kDisabled},
    {QPalette::Button, Palette::kField, Palette::kPanel},
    {QPalette::ButtonText, Palette::kSoft, Palette::kDisabled},
    {QPalette::BrightText, Palette::kText, Palette::kDisabled},
    {QPalette::Highlight, Palette::kProgress, Palette::kField},
    {QPalette::HighlightedText, Palette::kText, Palette::kDisabled},
    {QPalette::Link, Palette::kMint, Palette::kDisabled},
    {QPalette::LinkVisited, Palette::kBright, Palette::kDisabled},
    {QPalette::ToolTipBase, Palette::kTip, Palette::kTip},
    {QPalette::ToolTipText, Palette::kText, Palette::kText},
    {QPalette::Light, Palette::kEdge, Palette::kRestingEdge},
    {QPalette::Midlight, Palette::kRestingEdge, Palette::kRestingEdge},
    {QPalette::Mid, Palette::kHairline, Palette::kHairline},
    {QPalette::Dark, Palette::kGround, Palette::kGround},
    {QPalette::Shadow, Palette::kGround, Palette::kGround},
};

constexpr char16_t kMenuStyle[] =
    u"QMenu { color: @soft; background-color: @floating; border: 1px solid @edge; padding: 4px; font-size: 15px; }"
    "QMenu::item { padding: 6px 24px; border-radius: 4px; }"
    "QMenu::item:selected { color: @text; background-color: @selected; }"
    "QMenu::item:disabled { color: @disabled; background-color: transparent; }"
    "QMenu::separator { height: 1px; background-color: @hairline; margin: 4px 8px; }";

// Its controls are 36 points high, as all are.
constexpr char16_t kDialogStyle[] =
    u"QDialog { background-color: @floating; }"
    "QLineEdit, QSpinBox, QComboBox, QPushButton { color: @text; background-color: @field;"
    " border: 1px solid @edge; border-radius: 6px; padding: 4px 8px; min-height: 26px; font-size: 14px; }"
    "QPushButton { min-width: 72px; }"
    "QSpinBox::up-button, QSpinBox::down-button { width: 0; }"
    "QLineEdit:hover, QSpinBox:hover, QComboBox:hover, QPushButton:hover { border-color: @hoveredEdge; }"
    "QLineEdit:focus, QSpinBox:focus, QComboBox:focus, QPushButton:focus { border-color: @mint; }"
    "QPushButton:pressed { background-color: @selected; }"
    "QLineEdit:disabled, QSpinBox:disabled, QComboBox:disabled, QPushButton:disabled"
    " { color: @disabled; border-color: @restingEdge; }"
    "QComboBox::drop-down { border: none; width: 24px; }"
    "QComboBox::down-arrow { image: url(:/resource/img/option/drop.png); width: 14px; height: 14px; }"
    "QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px; padding: 4px; }"
    "QToolButton:hover, QToolButton:checked { background-color: @field; }"
    "QToolButton:focus { border-color: @mint; }"
    "QLabel, QCheckBox { color: @soft; font-size: 14px; }"
    "QAbstractItemView { color: @soft; background-color: @card; border: 1px solid @edge; font-size: 14px; }"
    "QHeaderView::section { color: @dim; background-color: @field; border: none; padding: 4px 8px; font-size: 13px; }";

constexpr QSize kSystemFrame(16, 48); // what a system draws around a window, if much

/// No larger than the screen has room for it, of which the toolkit thinks for some of its dialogs only.
void fitScreen(QDialog *dialog)
{
    dialog->resize(dialog->size().boundedTo(dialog->screen()->availableSize() - kSystemFrame));
}

/// Many menus and the question for a colour are the toolkit's own, made as they are wanted: each gets its look just
/// before it is shown, and its size as it is.
class DressFilter : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!watched->isWidgetType())
            return false;
        if (event->type() == QEvent::Polish)
            dress(static_cast<QWidget *>(watched));
        else if (auto *dialog = qobject_cast<QDialog *>(watched); dialog && event->type() == QEvent::Show)
            fitScreen(dialog);
        return false;
    }

private:
    static void dress(QWidget *widget)
    {
        if (widget->isWindow() && qobject_cast<QMenu *>(widget))
            widget->setStyleSheet(Palette::styled(kMenuStyle));
        else if (auto *dialog = qobject_cast<QColorDialog *>(widget))
            dressDialog(dialog);
    }
};

/// The toolkit's own style with the program's gaps, which every layout has that sets none of its own, and without
/// pictures on the buttons of dialogs.
class GridStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return metrics::kGap;
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return metrics::kInset;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *more) const override
    {
        const bool isIcon = hint == SH_DialogButtonBox_ButtonsHaveIcons; // they are in another hand than ours
        return isIcon ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

} // namespace

void dressApplication()
{
    if (!dynamic_cast<GridStyle *>(QApplication::style())) // the same everywhere, and the only one that heeds a palette
        QApplication::setStyle(new GridStyle(QStringLiteral("fusion")));
    QPalette palette;
    for (const Role &role : kRoles) {
        palette.setColor(QPalette::All, role.role, role.colour);
        palette.setColor(QPalette::Disabled, role.role, role.disabled);
    }
    QApplication::setPalette(palette);
    for (const char *kind : {"QMenu", "QMessageBox", "QAbstractItemView"}) // Windows has fonts of its own for these
        QApplication::setFont(QApplication::font(), kind);
    Pictures::keepFew();
    dressToolTips();
    qApp->installEventFilter(new DressFilter(qApp));
}

void dressDialog(QDialog *dialog)
{
    dialog->setStyleSheet(Palette::styled(kDialogStyle));
}

void holdUpItsWindow(QDialog *question)
{
    question->setWindowModality(question->parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
}

void dressText(QWidget *label, const TextLook &look)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::All, QPalette::WindowText, look.colour);
    if (look.disabled)
        palette.setColor(QPalette::Disabled, QPalette::WindowText, look.disabled);
    label->setPalette(palette);
    if (look.pixels == 0)
        return;
    QFont font = label->font();
    font.setPixelSize(look.pixels);
    label->setFont(font);
}
