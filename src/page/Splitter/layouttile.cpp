#include "page/Splitter/layouttile.h"

#include <QPainter>

#include "controls/palette.h"
#include "page/Splitter/zonepicture.h"

namespace {

constexpr QSize kSize(97, 82); // nine of them side by side
constexpr QRect kPicture(8, 8, 80, 45);
constexpr int kTilePixels = 13;
constexpr qreal kTileRadius = 8;

} // namespace

LayoutTile::LayoutTile(const SplitLayout &layout, bool isChosen, QWidget *parent)
    : PaintedControl(parent), m_layout(layout), m_isChosen(isChosen), m_caption(kTilePixels, shownName(layout))
{
    setObjectName(QStringLiteral("layout_") + layout.name);
    setFixedSize(kSize);
    setAccessibleName(m_caption.text());
}

void LayoutTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge = m_isChosen ? Palette::kMint : isHovered() ? Palette::kHoveredEdge : Palette::kEdge;
    painter.setPen(QPen(edge, m_isChosen ? 1.5 : 1));
    painter.setBrush(QColor(Palette::kCard));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kTileRadius, kTileRadius);
    drawZones(painter, kPicture, m_layout.zones, {2, 0, {}, m_isChosen});
    m_caption.draw(painter, rect().adjusted(6, kPicture.bottom() + 4, -6, -4), Qt::AlignCenter,
                   m_isChosen ? Palette::kText : Palette::kSoft);
    drawFocus(painter, rect(), kTileRadius);
}
