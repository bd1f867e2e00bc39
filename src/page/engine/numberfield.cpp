#include "page/engine/numberfield.h"

#include <QSpinBox>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wheeleventfilter.h"

static constexpr int kNumberWidth = 110;
static constexpr char16_t kNumberStyle[] =
    u"QSpinBox { color: @text; background-color: @field; border: 1px solid @edge; border-radius: 8px; padding: 0 8px;"
    " font-size: 14px; selection-background-color: @selected; }"
    "QSpinBox:focus { border-color: @mint; }";

QSpinBox *makeNumberField(const QString &name, const QString &unit, QWidget *parent)
{
    auto *field = new QSpinBox(parent);
    field->setObjectName(name);
    field->setStyleSheet(Palette::styled(kNumberStyle));
    field->setSuffix(unit);
    field->setFixedSize(kNumberWidth, metrics::kControlHeight);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->installEventFilter(new WheelEventFilter(field));
    return field;
}
