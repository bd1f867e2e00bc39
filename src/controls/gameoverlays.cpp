#include "controls/gameoverlays.h"

#include <cmath>
#include <span>

#include <QFont>
#include <QPainter>
#include <QRadialGradient>

namespace gameoverlays {

namespace {

/// A bar of a crosshair, in pixels from its middle.
using Bar = QRect;

constexpr Bar kPlus[] = {{-12, -1, 25, 2}, {-1, -12, 2, 25}};
constexpr Bar kOpenPlus[] = {{-16, -1, 11, 2}, {5, -1, 11, 2}, {-1, -16, 2, 11}, {-1, 5, 2, 11}};
constexpr Bar kDottedPlus[] = {{-16, -1, 10, 2}, {6, -1, 10, 2}, {-1, -16, 2, 10}, {-1, 6, 2, 10}, {-2, -2, 4, 4}};
// A ring of eight bars and its dot.
constexpr Bar kRing[] = {{-4, -10, 8, 2}, {-4, 8, 8, 2}, {-10, -4, 2, 8}, {8, -4, 2, 8}, {-8, -8, 4, 2},
                         {-8, -8, 2, 4},  {4, -8, 4, 2}, {6, -8, 2, 4},   {-8, 6, 4, 2}, {-8, 4, 2, 4},
                         {4, 6, 4, 2},    {6, 4, 2, 4},  {-2, -2, 4, 4}};
constexpr Bar kCaret[] = {{-1, -2, 2, 4}, {-3, 1, 2, 4}, {1, 1, 2, 4},   {-5, 4, 2, 4}, {3, 4, 2, 4},
                          {-7, 7, 2, 4},  {5, 7, 2, 4},  {-9, 10, 2, 4}, {7, 10, 2, 4}};
constexpr Bar kShotDot[] = {{-3, -2, 6, 4}};
constexpr std::span<const Bar> kShapes[] = {kPlus, kOpenPlus, kDottedPlus, kRing, kCaret, kShotDot};

// The last one is no colour: it turns what lies behind into its opposite.
constexpr QRgb kColours[] = {0xffff5a5a, 0xffffd84a, 0xff4bff7d, 0xff45e6ff, 0xff4b7dff, 0xffbf4bff, 0xffffffff};
constexpr int kOpposite = 7;

constexpr double kPlaces[] = {0.2, 0.4, 0.5, 0.6, 0.8};

constexpr int kMargin = 12;
constexpr int kBoxHeight = 26;
constexpr int kBoxPadding = 10;

} // namespace

QPointF crosshairCentre(const QRectF &screen, int place)
{
    const double part = place >= 0 && place < int(std::size(kPlaces)) ? kPlaces[place] : 0.5;
    return {std::round(screen.center().x()), std::round(screen.top() + part * screen.height())};
}

void drawCrosshair(QPainter &painter, const QPointF &centre, int shape, int colour, int scale)
{
    if (shape < 1 || shape > int(std::size(kShapes)) || colour < 0 || colour > kOpposite)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (colour == kOpposite)
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
    const QColor fill(colour == kOpposite ? 0xffffffff : kColours[colour]);
    QRegion bars; // together: an opposite of an opposite would be what was there
    for (const Bar &bar : kShapes[shape - 1])
        bars += QRect(bar.topLeft() * scale, bar.size() * scale);
    painter.translate(centre);
    for (const QRect &bar : bars)
        painter.fillRect(bar, fill);
    painter.restore();
}

void drawReadout(QPainter &painter, const QRectF &screen, int corner, const QString &text)
{
    QFont font = painter.font();
    font.setPixelSize(15);
    font.setBold(true);
    const int width = QFontMetrics(font).horizontalAdvance(text) + 2 * kBoxPadding;
    const QRectF inside = screen.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRectF box(0, 0, width, kBoxHeight);
    const bool isRight = corner == 1 || corner == 3;
    const bool isLow = corner == 2 || corner == 3;
    box.moveLeft(isRight ? inside.right() - width : inside.left());
    box.moveTop(isLow ? inside.bottom() - kBoxHeight : inside.top());
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawRoundedRect(box, 5, 5);
    painter.setFont(font);
    painter.setPen(QColor(kColours[2]));
    painter.drawText(box, Qt::AlignCenter, text);
    painter.restore();
}

void drawFocusDimming(QPainter &painter, const QRectF &screen, int level)
{
    painter.save();
    painter.translate(screen.center());
    painter.scale(1, screen.height() / screen.width());
    const double radius = screen.width() * 0.62;
    QRadialGradient rim(QPointF(), radius);
    rim.setColorAt(0.45, QColor(0, 0, 0, 0));
    rim.setColorAt(1, QColor(0, 0, 0, 110 + 60 * level));
    painter.fillRect(QRectF(-screen.width() / 2, -screen.width() / 2, screen.width(), screen.width()), rim);
    painter.restore();
}

} // namespace gameoverlays
