#include "page/Game/gamepictures.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "controls/gameoverlays.h"
#include "controls/testpicture.h"

using namespace gameoverlays;

namespace gamepictures {

namespace {

constexpr int kRed = 0;

void paintRush(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    // What moves: with the delay of before behind it, and without.
    const bool isFast = values.is(Command::GameRush, 1);
    const QPointF hand = screen.center() + QPointF(screen.width() * 0.18, 0);
    for (int step = isFast ? 0 : 3; step >= 0; --step) {
        painter.setOpacity(step == 0 ? 1.0 : 0.12 + 0.1 * (3 - step));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawEllipse(hand - QPointF(step * screen.width() * 0.05, 0), 9, 9);
    }
    painter.setOpacity(1);
    drawReadout(painter, screen, 1, isFast ? QStringLiteral("1 ms") : QStringLiteral("8 ms"));
}

void paintCrosshair(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    const bool isTold = values.valueOf(Command::CrosshairShape) && values.valueOf(Command::CrosshairColor) &&
                        values.valueOf(Command::CrosshairPlace);
    if (isTold && (values.is(Command::Crosshair, 1) || values.isPreview()))
        drawCrosshair(painter, crosshairCentre(screen, values(Command::CrosshairPlace, 2)),
                      values(Command::CrosshairShape, 1), values(Command::CrosshairColor, kRed));
}

/// One half for the game and one, warmer, for what is read.
void paintDualMode(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    if (!values.is(Command::AiDualMode, 1))
        return;
    QRectF right = screen;
    right.setLeft(screen.center().x());
    painter.save();
    painter.setClipRect(right, Qt::IntersectClip);
    drawTestPicture(painter, screen, {.contrast = 0.42, .saturation = 0.4, .kelvin = 4600});
    painter.restore();
}

void paintMovingCrosshair(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    if (!values.is(Command::MovingCrosshair, 1) && !values.isPreview())
        return;
    // It opens while the picture moves: at rest, and around it as it is then.
    const QPointF centre = crosshairCentre(screen, 2);
    const int size = values(Command::MovingCrosshairSize, 1);
    const int colour = values(Command::MovingCrosshairColor, kRed);
    drawCrosshair(painter, centre, 2, colour, size + 1);
    drawCrosshair(painter, centre, 6, colour);
}

/// A level of 0 to 4 as a part of the whole: the middle one is the picture as it is.
double level(const PictureValues &values, Command command)
{
    return 0.3 + 0.1 * values(command, 2);
}

/// With edges that stand out the more, the higher the amount; below 0 with softer ones.
QImage sharpened(const QImage &image, double amount)
{
    const QImage soft = image.scaled(image.size() / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage result(image.size(), QImage::Format_RGB32);
    const auto mix = [amount](int is, int isSoft) {
        return std::clamp(is + static_cast<int>(std::lround(amount * (is - isSoft))), 0, 255);
    };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb is = image.pixel(x, y);
            const QRgb isSoft = soft.pixel(x, y);
            result.setPixel(
                x, y,
                qRgb(mix(qRed(is), qRed(isSoft)), mix(qGreen(is), qGreen(isSoft)), mix(qBlue(is), qBlue(isSoft))));
        }
    }
    return result;
}

void paintHawkEye(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    if (!values.is(Command::HawkEyeVision, 1) && !values.isPreview())
        return;
    static constexpr double kZooms[] = {1.5, 2, 4};
    const double zoom = kZooms[std::clamp(values(Command::HawkEyeZoom, 0), 0, 2)];
    const QImage image = testPicture(screen.size().toSize(), {.brightness = level(values, Command::HawkEyeBrightness),
                                                              .contrast = level(values, Command::HawkEyeContrast)});
    QRectF lens(0, 0, screen.height() * 0.5, screen.height() * 0.5);
    lens.moveCenter(screen.center());
    QRect seen(QPoint(), (lens.size() / zoom).toSize());
    seen.moveCenter(image.rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(lens, sharpened(image.copy(seen), 0.6 * (values(Command::HawkEyeSharpness, 2) - 2)));
    painter.setPen(QPen(QColor(255, 255, 255, 170), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(lens);
}

void paintNightVision(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    static constexpr double kLifts[] = {0, 0.45, 0.9, 0.45, 0.9};
    const int option = std::clamp(values(Command::NightVision, 0), 0, 4);
    drawTestPicture(painter, screen,
                    {.shadows = kLifts[option], .gamma = 2.2 - kLifts[option], .day = 0.25 + 0.3 * kLifts[option]});
}

void paintRefreshRate(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    if (values.is(Command::RefreshRate, 1) || values.isPreview())
        drawReadout(painter, screen, values(Command::RefreshRatePlace, 1), QStringLiteral("165 Hz"));
}

void paintStopwatch(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    static constexpr int kMinutes[] = {15, 30, 60, 90};
    const int minutes = kMinutes[std::clamp(values(Command::StopwatchTime, 1), 1, 4) - 1];
    if (values.is(Command::Stopwatch, 1) || values.isPreview())
        drawReadout(painter, screen, values(Command::StopwatchPlace, 0),
                    QStringLiteral("00:12 / %1:00").arg(minutes, 2, 10, QLatin1Char('0')));
}

void paintGameTime(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    const int minutes = 20 + 10 * std::clamp(values(Command::GameTimeLength, 1), 1, 4);
    if (values.is(Command::GameTime, 1) || values.isPreview())
        drawReadout(painter, screen, values(Command::GameTimePlace, 0), QStringLiteral("%1:00").arg(minutes));
}

void paintFocusDimming(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawTestPicture(painter, screen);
    if (values.is(Command::FocusDimming, 1) || values.isPreview())
        drawFocusDimming(painter, screen, values(Command::FocusDimmingLevel, 0));
}

} // namespace

const PanelPicture kRush{paintRush};
const PanelPicture kCrosshair{paintCrosshair};
const PanelPicture kHawkEye{paintHawkEye};
const PanelPicture kNightVision{paintNightVision};
const PanelPicture kRefreshRate{paintRefreshRate};
const PanelPicture kStopwatch{paintStopwatch};
const PanelPicture kGameTime{paintGameTime};
const PanelPicture kMovingCrosshair{paintMovingCrosshair};
const PanelPicture kFocusDimming{paintFocusDimming};
const PanelPicture kDualMode{paintDualMode};

void drawShape(QPainter &painter, const QRectF &button, int shape)
{
    const QPointF centre = button.center();
    drawCrosshair(painter, QPointF(std::round(centre.x()), std::round(centre.y())), shape, kRed);
}

} // namespace gamepictures
