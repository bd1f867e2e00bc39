#include "page/engine/commonpictures.h"

#include <algorithm>

#include <QPainter>
#include <QRadialGradient>

#include "controls/testpicture.h"

namespace commonpictures {

namespace {

/// A disc that flies from left to right, with what the eye sees of it behind it: @p smear is how much, 0 to 1, and
/// @p bright a rim that overshoots.
void drawFlight(QPainter &painter, const QRectF &screen, double smear, double bright)
{
    painter.fillRect(screen, QColor(0xff26323a));
    const double radius = screen.height() * 0.14;
    const QPointF at(screen.left() + screen.width() * 0.66, screen.center().y());
    painter.setPen(Qt::NoPen);
    constexpr int kGhosts = 24;
    for (int ghost = kGhosts; ghost > 0 && smear > 0; --ghost) {
        const double behind = screen.width() * 0.34 * smear * ghost / kGhosts;
        painter.setBrush(QColor(235, 240, 238, int(26 * (1 - double(ghost) / kGhosts) + 4)));
        painter.drawEllipse(at - QPointF(behind, 0), radius, radius);
    }
    if (bright > 0) {
        painter.setBrush(QColor(255, 235, 170, int(200 * bright)));
        painter.drawEllipse(at - QPointF(radius * 0.35, 0), radius * 1.12, radius * 1.12);
    }
    painter.setBrush(QColor(0xffe6ece9));
    painter.drawEllipse(at, radius, radius);
    painter.setPen(QPen(QColor(0xff26323a), std::max(2.0, 2 + 5 * smear)));
    painter.drawLine(at - QPointF(0, radius * 0.6), at + QPointF(0, radius * 0.6));
    painter.drawLine(at - QPointF(radius * 0.6, 0), at + QPointF(radius * 0.6, 0));
}

void paintMotion(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawFlight(painter, screen, 1 - std::clamp(values(Command::MotionTech, 2) - 2, 0, 6) / 6.0, 0);
}

void paintResponse(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const int option = std::clamp(values(Command::GrayResponse, 0), 0, 4);
    drawFlight(painter, screen, (4 - option) / 4.0, option == 4 ? 1 : 0);
}

/// A bright thing on a dark ground, with light behind the dark that dimming takes away and a glow around it.
void drawLamp(QPainter &painter, const QRectF &screen, double grey, double glow)
{
    painter.fillRect(screen, QColor::fromRgbF(float(grey), float(grey), float(grey * 1.05)));
    const double reach = screen.height() * 0.5;
    QRadialGradient halo(screen.center(), reach);
    halo.setColorAt(0, QColor(190, 215, 255, int(220 * glow)));
    halo.setColorAt(1, QColor(190, 215, 255, 0));
    painter.fillRect(screen, halo);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(screen.center(), screen.height() * 0.11, screen.height() * 0.11);
}

void paintDimming(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    const int level = std::clamp(values(Command::LocalDimming, 2) - 2, 0, 4);
    drawLamp(painter, screen, 0.16 * (4 - level) / 4, 0.12 + 0.08 * level);
}

void paintHalo(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    drawLamp(painter, screen, 0.02, 0.6 * (1 - values(Command::HaloControl, 40) / 100.0));
}

void paintRange(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    // A signal of the other range looks washed out.
    const bool isOther = values.is(Command::OutputRange, 1);
    const PictureLook look = isOther ? PictureLook{.contrast = 0.36, .shadows = 0.3} : PictureLook{};
    drawTestPicture(painter, screen, look);
}

} // namespace

const PanelPicture kMotion{paintMotion};
const PanelPicture kResponse{paintResponse};
const PanelPicture kDimming{paintDimming};
const PanelPicture kHalo{paintHalo};
const PanelPicture kRange{paintRange};

} // namespace commonpictures
