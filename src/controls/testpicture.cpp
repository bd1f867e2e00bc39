#include "controls/testpicture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

namespace {

struct Hill
{
    QRgb colour;
    std::array<QPointF, 5> ridge; ///< in parts of the picture, from left to right
};
const Hill kHills[] = {
    {0xff3c6a58, {QPointF(0, .64), {.18, .39}, {.32, .57}, {.54, .22}, {1, .50}}},
    {0xff20382c, {QPointF(0, .79), {.28, .64}, {.60, .75}, {.82, .62}, {1, .70}}},
};

// A colour card, so that colours are seen as well as light.
constexpr QRgb kCard[] = {0xffe5484d, 0xfff0c419, 0xff3fb950, 0xff2fc6d6, 0xff3b6df0, 0xffb04be0};

using Channel = std::array<uchar, 256>;

/// The white of a black body, roughly: red, green and blue for 3500 to 9500 K.
std::array<double, 3> white(double kelvin)
{
    const double cold = std::clamp((kelvin - 6500) / 3000, -1.0, 1.0);
    return cold < 0 ? std::array{1.0, 1.0 + 0.10 * cold, 1.0 + 0.34 * cold}
                    : std::array{1.0 - 0.20 * cold, 1.0 - 0.06 * cold, 1.0};
}

Channel channel(const PictureLook &look, double gain)
{
    Channel values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        double value = std::pow(static_cast<double>(i) / 255, look.gamma / 2.2);
        value = value + look.shadows * 0.5 * (1 - value) * std::sqrt(value + 0.02);
        value = (value - 0.5) * (0.5 + look.contrast) + 0.5;
        value *= (0.45 + 1.1 * look.brightness) * gain * (0.16 + 0.84 * look.day);
        values[i] = static_cast<uchar>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
    }
    return values;
}

/// A tower far away in the middle of the picture, with somebody beside it: small things that a setting may bring out.
void drawTower(QPainter &painter, const QRectF &all)
{
    constexpr QRgb kStone = 0xffe3d3b0, kRoof = 0xff44566e, kDark = 0xff1c2a30;
    painter.save();
    painter.translate(all.center());
    const double unit = all.height() / 100;
    painter.scale(unit, unit);
    painter.fillRect(QRectF(-2, -3, 4, 9), QColor(kStone));
    for (const QRectF &opening : {QRectF(-0.8, -1.5, 1.6, 2), QRectF(-0.9, 3, 1.8, 3)})
        painter.fillRect(opening, QColor(kDark));
    painter.setBrush(QColor(kRoof));
    painter.drawPolygon(QPolygonF{QPointF(-3, -3), {0, -6.5}, {3, -3}});
    painter.fillRect(QRectF(-0.2, -9.6, 0.4, 3.4), QColor(kDark));
    painter.setBrush(QColor(kCard[1]));
    painter.drawPolygon(QPolygonF{QPointF(0.2, -9.6), {3, -8.7}, {0.2, -7.8}});
    painter.setBrush(QColor(kDark));
    painter.drawEllipse(QPointF(4.4, 3.6), 0.6, 0.6);
    painter.drawRoundedRect(QRectF(3.8, 4.3, 1.2, 2), 0.4, 0.4);
    painter.restore();
}

QImage landscape(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF all(0, 0, size.width(), size.height());
    QLinearGradient sky(all.topLeft(), all.bottomLeft());
    sky.setColorAt(0, QColor(0xff2f6fa8));
    sky.setColorAt(0.7, QColor(0xffb9d3d8));
    painter.fillRect(all, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xfffff2c4));
    const double sun = all.height() * 0.09;
    painter.drawEllipse(QPointF(all.width() * 0.80, all.height() * 0.22), sun, sun);
    for (const Hill &hill : kHills) {
        QPolygonF shape{all.bottomLeft()};
        for (const QPointF &point : hill.ridge)
            shape << QPointF(point.x() * all.width(), point.y() * all.height());
        shape << all.bottomRight();
        painter.setBrush(QColor(hill.colour));
        painter.drawPolygon(shape);
    }
    drawTower(painter, all);
    const double side = all.height() * 0.09;
    for (std::size_t i = 0; i < std::size(kCard); ++i)
        painter.fillRect(QRectF(side * (0.6 + 1.15 * double(i)), all.height() - 1.6 * side, side, side),
                         QColor(kCard[i]));
    return image;
}

} // namespace

QImage testPicture(const QSize &size, const PictureLook &look)
{
    static QImage plain; // drawn once for a size: settings change what is shown of it
    if (plain.size() != size)
        plain = landscape(size);
    const auto gains = white(look.kelvin);
    const Channel reds = channel(look, gains[0] * look.red);
    const Channel greens = channel(look, gains[1] * look.green);
    const Channel blues = channel(look, gains[2] * look.blue);
    const double strength = 0.2 + 1.6 * look.saturation;
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(plain.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int grey = qGray(from[x]);
            const auto mix = [grey, strength](int value) {
                return static_cast<std::size_t>(std::clamp(grey + int((value - grey) * strength), 0, 255));
            };
            to[x] = qRgb(reds[mix(qRed(from[x]))], greens[mix(qGreen(from[x]))], blues[mix(qBlue(from[x]))]);
        }
    }
    return image;
}

void drawTestPicture(QPainter &painter, const QRectF &screen, const PictureLook &look)
{
    painter.drawImage(screen.topLeft(), testPicture(screen.size().toSize(), look));
}
