#include "page/Splitter/zonepicture.h"

#include <QPainter>

#include "controls/palette.h"

static constexpr qreal kZoneRadius = 4;

QRectF zoneOnPicture(const Zone &zone, const QRectF &screen)
{
    const qreal unitX = screen.width() / kWholeSide;
    const qreal unitY = screen.height() / kWholeSide;
    return QRectF(QPointF(screen.x() + zone.left * unitX, screen.y() + zone.top * unitY),
                  QPointF(screen.x() + zone.right * unitX, screen.y() + zone.bottom * unitY));
}

void drawZones(QPainter &painter, const QRectF &screen, std::span<const Zone> zones, const ZoneLook &look)
{
    QFont font = painter.font();
    if (look.digits > 0)
        font.setPixelSize(look.digits);
    painter.setFont(font);
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const qreal half = look.gap / 2;
        const QRectF rect = zoneOnPicture(zones[i], screen).adjusted(half, half, -half, -half);
        const bool isMarked = look.marked == i;
        painter.setPen(QPen(QColor(isMarked     ? Palette::kMint
                                   : look.isLit ? Palette::kChecked
                                                : Palette::kEdge),
                            isMarked ? 2 : 1));
        painter.setBrush(QColor(isMarked || look.isLit ? Palette::kSelected : Palette::kField));
        painter.drawRoundedRect(rect, kZoneRadius, kZoneRadius);
        if (look.digits == 0)
            continue;
        painter.setPen(QColor(isMarked ? Palette::kText : Palette::kSoft));
        painter.drawText(rect, Qt::AlignCenter, QString::number(i + 1));
    }
}
