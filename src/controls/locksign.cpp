#include "controls/locksign.h"

#include <QPainter>

#include "controls/labelled.h"
#include "controls/palette.h"

namespace {

const QColor kSignDim = Palette::kDim;
const QColor kPointedAt = Palette::kMint;

} // namespace

LockSign::LockSign(QWidget *parent) : PaintedControl(parent)
{
    setFixedSize(kSize, kSize);
    hide();
}

void LockSign::setReason(const QString &locked, const QString &reason)
{
    setAccessibleName(labelled(locked, reason));
    setToolTip(reason);
    setVisible(!reason.isEmpty());
}

void LockSign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = isHovered() || hasFocus() ? kPointedAt : kSignDim;
    const QPointF centre = QRectF(rect()).center();
    painter.setPen(QPen(color, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(centre.x() - 2.75, centre.y() - 5.5, 5.5, 7), 0, 180 * 16); // the shackle
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(centre.x() - 4.5, centre.y() - 1.5, 9, 7), 1.5, 1.5);
    QRect around(0, 0, kSize, kSize);
    around.moveCenter(rect().center());
    drawFocus(painter, around, 4.0);
}
