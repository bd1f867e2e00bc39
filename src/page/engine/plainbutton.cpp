#include "page/engine/plainbutton.h"

#include <QPushButton>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "page/engine/boundtexts.h"

// One that has something to do looks so while its property "waiting" is set.
static constexpr char16_t kPlainStyle[] =
    u"QPushButton { color: @soft; background-color: @field; border: 1px solid @edge; border-radius: 8px;"
    " padding: 0 20px; font-size: 15px; outline: none; }"
    "QPushButton:hover { color: @text; border-color: @hoveredEdge; }"
    "QPushButton:focus { border-color: @mint; }"
    "QPushButton:pressed { background-color: @selected; }"
    "QPushButton:disabled { color: @disabled; border-color: @restingEdge; }"
    "QPushButton[waiting=\"true\"] { color: @ink; background-color: @mint; border-color: @mint; }"
    "QPushButton[waiting=\"true\"]:hover { color: @ink; background-color: @bright; }"
    "QPushButton[waiting=\"true\"]:focus { border-color: @text; }"
    "QPushButton:checked { color: @bright; background-color: @selected; border-color: @checked; }"
    "QPushButton:checked:focus { border-color: @text; }";

void dressPlainButton(QPushButton *button, const QString &more)
{
    static const QString style = Palette::styled(kPlainStyle);
    button->setStyleSheet(style + more);
}

QPushButton *makePlainButton(const char *label, const QString &name, BoundTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    dressPlainButton(button);
    button->setFixedHeight(metrics::kControlHeight);
    texts.bind(label, [button](const QString &text) { button->setText(text); });
    return button;
}

void allowButton(QPushButton *button, bool can, const QString &whyNot)
{
    button->setEnabled(can);
    button->setToolTip(can ? QString() : whyNot);
    button->setAccessibleDescription(button->toolTip());
}
