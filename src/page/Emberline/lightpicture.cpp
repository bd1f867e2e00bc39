#include "page/Emberline/lightpicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

#include "controls/palette.h"

namespace {

constexpr double kShape = 16.0 / 9;
constexpr double kWhole = 1.24; // from the upper edge to the foot, in heights of the back
constexpr int kGlowScale = 8;   // light has no edges: it is drawn small
constexpr double kRadius = 14;
constexpr QRgb kWall = 0xff0a0e0c, kBack = 0xff1a211e, kBackEnd = 0xff131916, kStand = 0xff2b3631;

/// Where the parts stand.
struct Stage
{
    QRectF room, back, ring, foot;
    double deskTop;

    explicit Stage(const QRect &area) : room(area)
    {
        const double height = std::min(room.height() * 0.66, room.width() * 0.74 / kShape);
        const double top = std::max(room.height() * 0.12, (room.height() - kWhole * height) / 2);
        back = QRectF(0, 0, height * kShape, height);
        back.moveCenter({room.center().x(), room.top() + top + height / 2});
        const double across = height * 0.46;
        ring = QRectF(0, 0, across, across);
        ring.moveCenter(back.center() - QPointF(0, height * 0.04));
        foot = QRectF(0, 0, height * 0.8, height * 0.13);
        foot.moveCenter({back.center().x(), back.bottom() + height * 0.17});
        deskTop = back.bottom() + height * 0.09;
    }
};

QRgb average(const LightFrame &frame, std::size_t first, std::size_t last)
{
    int red = 0, green = 0, blue = 0;
    for (std::size_t i = first; i < last; ++i) {
        red += qRed(frame.ring[i]);
        green += qGreen(frame.ring[i]);
        blue += qBlue(frame.ring[i]);
    }
    const int count = static_cast<int>(last - first);
    return qRgb(red / count, green / count, blue / count);
}

void glow(QPainter &painter, const QPointF &center, double across, double down, QRgb color, double strength)
{
    if (qRed(color) + qGreen(color) + qBlue(color) == 0)
        return;
    painter.save();
    painter.translate(center);
    painter.scale(1, down / across);
    QRadialGradient light(QPointF(), across);
    QColor inner(color);
    inner.setAlphaF(static_cast<float>(strength));
    QColor middle = inner;
    middle.setAlphaF(static_cast<float>(strength * 0.35));
    QColor outer = inner;
    outer.setAlpha(0);
    light.setColorAt(0, inner);
    light.setColorAt(0.5, middle);
    light.setColorAt(1, outer);
    painter.fillRect(QRectF(-across, -across, 2 * across, 2 * across), light);
    painter.restore();
}

/// What the lamps throw onto the wall and the desk.
QImage lightOnRoom(const Stage &stage, const LightFrame &frame)
{
    const QSize small(std::max(1, int(stage.room.width()) / kGlowScale),
                      std::max(1, int(stage.room.height()) / kGlowScale));
    QImage image(small, QImage::Format_RGB32);
    image.fill(kWall);
    QPainter painter(&image);
    painter.scale(small.width() / stage.room.width(), small.height() / stage.room.height());
    painter.translate(-stage.room.topLeft());
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    const double width = stage.back.width();
    const double height = stage.back.height();
    const std::size_t half = frame.ring.size() / 2;
    const QPointF aside(width * 0.28, 0);
    glow(painter, stage.ring.center() + aside, width * 0.62, height * 0.95, average(frame, 0, half), 0.75);
    glow(painter, stage.ring.center() - aside, width * 0.62, height * 0.95, average(frame, half, frame.ring.size()),
         0.75);
    glow(painter, {stage.back.center().x(), stage.back.top()}, width * 0.62, height * 0.42, frame.rear, 0.9);
    glow(painter, {stage.back.center().x(), stage.deskTop + height * 0.1}, width * 0.6, height * 0.2, frame.front, 0.9);
    const QRgb belt = frame.belt[frame.belt.size() / 2];
    glow(painter, {stage.back.center().x(), stage.back.bottom()}, width * 0.5, height * 0.12, belt, 0.5);
    return image;
}

void paintStand(QPainter &painter, const Stage &stage, const LightFrame &frame)
{
    const double neck = stage.back.width() * 0.055;
    painter.setBrush(QColor(kStand));
    painter.drawRect(QRectF(stage.back.center().x() - neck / 2, stage.ring.center().y(), neck,
                            stage.foot.center().y() - stage.ring.center().y()));
    painter.drawEllipse(stage.foot);
    painter.setBrush(Qt::NoBrush);
    const QRectF lamps = stage.foot.adjusted(3, 3, -3, -3);
    for (const auto &[color, begin] : {std::pair(frame.beltRear, 0), {frame.beltFront, 180}}) {
        painter.setPen(QPen(QColor(color), 4, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(lamps, (begin + 8) * 16, 164 * 16);
    }
    painter.setPen(Qt::NoPen);
}

void paintRing(QPainter &painter, const Stage &stage, const LightFrame &frame)
{
    const double thick = stage.ring.width() * 0.075;
    painter.setBrush(QColor(0xff0c100e));
    painter.drawEllipse(stage.ring.adjusted(-thick, -thick, thick, thick));
    painter.setBrush(Qt::NoBrush);
    const double step = 360.0 / static_cast<double>(frame.ring.size());
    for (std::size_t i = 0; i < frame.ring.size(); ++i) {
        const double begin = 90 - step * static_cast<double>(i); // clockwise from the top
        const bool isLit = (frame.ring[i] & 0xffffff) != 0;
        painter.setPen(QPen(QColor(isLit ? frame.ring[i] : QRgb{kStand}), thick, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(stage.ring, int(begin * 16), -int(step * 16 * 0.86));
    }
    painter.setPen(Qt::NoPen);
}

void paintBack(QPainter &painter, const Stage &stage, const LightFrame &frame)
{
    QLinearGradient body(stage.back.topLeft(), stage.back.bottomLeft());
    body.setColorAt(0, QColor(kBack));
    body.setColorAt(1, QColor(kBackEnd));
    painter.setPen(QPen(QColor(Palette::kRestingEdge), 1));
    painter.setBrush(body);
    painter.drawRoundedRect(stage.back, kRadius, kRadius);
    painter.setPen(Qt::NoPen);
    const auto lamp = [&painter](const QRectF &rect, QRgb color) {
        painter.setBrush(QColor((color & 0xffffff) != 0 ? color : QRgb{kStand}));
        painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    };
    const double inset = stage.back.width() * 0.2;
    lamp({stage.back.left() + inset, stage.back.top() + 4, stage.back.width() - 2 * inset, 4}, frame.rear);
    lamp({stage.back.left() + inset, stage.back.bottom() - 18, stage.back.width() - 2 * inset, 3}, frame.front);
    const double pitch = (stage.back.width() - 2 * kRadius) / static_cast<double>(frame.belt.size());
    for (std::size_t i = 0; i < frame.belt.size(); ++i)
        lamp({stage.back.left() + kRadius + pitch * static_cast<double>(i), stage.back.bottom() - 8, pitch * 0.8, 4},
             frame.belt[i]);
}

} // namespace

void paintLightPicture(QPainter &painter, const QRect &area, const LightFrame &frame)
{
    const Stage stage(area);
    painter.save();
    QPainterPath card;
    card.addRoundedRect(stage.room, 10, 10);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipPath(card);
    painter.drawImage(stage.room, lightOnRoom(stage, frame));
    painter.setPen(QPen(QColor(Palette::kHairline), 1));
    painter.drawLine(QPointF(stage.room.left(), stage.deskTop), QPointF(stage.room.right(), stage.deskTop));
    painter.setPen(Qt::NoPen);
    paintBack(painter, stage, frame);
    paintStand(painter, stage, frame);
    paintRing(painter, stage, frame);
    painter.restore();
}
