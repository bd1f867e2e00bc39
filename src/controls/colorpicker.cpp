#include "controls/colorpicker.h"

#include <QColorDialog>
#include <QPainter>
#include <QPointer>

#include "controls/dash.h"
#include "controls/dress.h"
#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr QSize kPickerSize(56, 34);
constexpr int kFrameWidth = 5;
} // namespace

ColorPicker::ColorPicker(QWidget *parent) : PaintedControl(parent)
{
    setFixedSize(kPickerSize);
    m_swatchRect = rect().adjusted(kFrameWidth, kFrameWidth, -kFrameWidth, -kFrameWidth);
    setAccessibleDescription(m_color.name());
}

void ColorPicker::setColor(const QColor &color)
{
    if (!color.isValid())
        return;
    m_color = color;
    m_isKnown = true;
    setAccessibleDescription(color.name());
    update();
}

void ColorPicker::setUnknown()
{
    m_isKnown = false;
    setAccessibleDescription(QObject::tr("unknown"));
    update();
}

void ColorPicker::onPickColor()
{
    const QColor picked = askColor();
    if (!picked.isValid())
        return;
    setColor(picked);
    Q_EMIT sigColorChanged(m_color);
}

QColor ColorPicker::askColor()
{
    const QPointer dialog = new QColorDialog(m_color, this); // the picker may go while it is open
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    holdUpItsWindow(dialog);
    const bool isChosen = dialog->exec() == QDialog::Accepted && dialog;
    const QColor chosen = isChosen ? dialog->selectedColor() : QColor();
    delete dialog;
    return chosen;
}

void ColorPicker::pressAt(const QPoint &position)
{
    if (m_swatchRect.contains(position))
        onPickColor();
}

void ColorPicker::resizeEvent(QResizeEvent *)
{
    m_swatchRect = rect().adjusted(kFrameWidth, kFrameWidth, -kFrameWidth, -kFrameWidth);
}

void ColorPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.35);
    const bool hovered = isHovered() && isEnabled();
    const QString state = hovered ? QStringLiteral("hover") : QString();
    if (!Pictures::draw(painter, rect(),
                        Pictures::ofState(Pictures::kRoot + QStringLiteral("img/picker/frame"), state))) {
        painter.setPen(QColor(hovered ? Palette::kMint : Palette::kRim));
        painter.setBrush(QColor(Palette::kWell));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
    }
    if (m_isKnown) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color);
        painter.drawRoundedRect(m_swatchRect, 4, 4);
    } else {
        painter.setPen(QColor(Palette::kText));
        painter.drawText(m_swatchRect, Qt::AlignCenter, kDash);
    }
    painter.setOpacity(1.0);
    drawFocus(painter, rect(), 8.0);
}
