#include "controls/switchbuttonrectangle.h"

#include <QPainter>

#include "controls/palette.h"

namespace {
constexpr QSize kBoxSize(20, 20);
const QColor kGround(1, 1, 1);
const QColor kOutline = Palette::kRim;
const QColor kHoveredOutline = Palette::translucent(Palette::kMint, 150);
const QColor kMark = Palette::kMint;
const QColor kDisabled = Palette::kDisabled;
} // namespace

SwitchButtonRectangle::SwitchButtonRectangle(QWidget *parent) : CheckedControl(parent)
{
    setFixedSize(kBoxSize);
}

void SwitchButtonRectangle::press()
{
    setChecked(!isChecked());
    Q_EMIT sigClicked(isChecked());
}

void SwitchButtonRectangle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Room for the focus outline around the box.
    const QRect box = rect().adjusted(2, 2, -2, -2);
    painter.fillRect(box, kGround);
    painter.setPen(!isEnabled() ? kDisabled.darker(170) : isHovered() ? kHoveredOutline : kOutline);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    if (isChecked()) {
        const QRectF inner = QRectF(box).adjusted(1, 1, -1, -1);
        painter.setPen(QPen(isEnabled() ? kMark : kDisabled, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(isEnabled() ? kOutline : kGround);
        painter.drawRect(inner.adjusted(1, 1, -1, -1));
    }
    drawFocus(painter, rect(), 3.0);
}
