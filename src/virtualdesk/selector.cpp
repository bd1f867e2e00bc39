#include "virtualdesk/selector.h"

#include <QPainter>

namespace virtualdesk {

void Selector::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x7b, 0xfa, 0xdb), 1.6));
    const QPointF tip(width() - 16.0, height() / 2.0 + 2.0);
    painter.drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}));
}

} // namespace virtualdesk
