#include "controls/dress.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QPalette>
#include <QStyle>

#include "controls/palette.h"
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
    {QPalette::Highlight, Palette::kSelected, Palette::kField},
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

constexpr char16_t kSurfaceStyle[] =
    u"QMenu { color: @soft; background-color: @floating; border: 1px solid @edge; padding: 4px; font-size: 15px; }"
    "QMenu::item { padding: 6px 24px; border-radius: 4px; }"
    "QMenu::item:selected { color: @text; background-color: @selected; }"
    "QMenu::item:disabled { color: @disabled; background-color: transparent; }"
    "QMenu::separator { height: 1px; background-color: @hairline; margin: 4px 8px; }"
    "QToolTip { color: @text; background-color: @tip; border: 1px solid @edge; }";

constexpr char16_t kDialogStyle[] =
    u"QDialog { background-color: @floating; }"
    "QLineEdit, QSpinBox, QComboBox, QPushButton { color: @text; background-color: @field;"
    " border: 1px solid @edge; border-radius: 6px; padding: 4px 8px; min-height: 20px; font-size: 14px; }"
    "QPushButton { min-width: 72px; }"
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

} // namespace

void dressApplication()
{
    const QString fusion = QStringLiteral("fusion"); // the same everywhere, and the only one that heeds a palette
    if (QApplication::style()->name() != fusion)
        QApplication::setStyle(fusion);
    QPalette palette;
    for (const Role &role : kRoles) {
        palette.setColor(QPalette::All, role.role, role.colour);
        palette.setColor(QPalette::Disabled, role.role, role.disabled);
    }
    QApplication::setPalette(palette);
    palette.setColor(QPalette::Highlight, Palette::kProgress);
    QApplication::setPalette(palette, "QProgressBar");
    dressToolTips();
}

QString surfaceStyle()
{
    return Palette::styled(kSurfaceStyle);
}

void dressMenu(QMenu *menu)
{
    menu->setStyleSheet(surfaceStyle());
}

void dressDialog(QDialog *dialog)
{
    dialog->setStyleSheet(surfaceStyle() + Palette::styled(kDialogStyle));
}
