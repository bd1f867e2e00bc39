#include "controls/monitorpicture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QPainter>

#include "controls/accessiblecontrol.h"
#include "controls/palette.h"

namespace {

constexpr qreal kFrame = 12;  // between the body's edge and the screen
constexpr qreal kCorner = 14; // of the body
constexpr qreal kStand = 34;  // below the body
constexpr qreal kStandWidth = 86;
constexpr qreal kAspect = 16.0 / 9.0;
constexpr qreal kWidest = 600;
constexpr qreal kNarrowest = 240;
constexpr QRgb kBody = 0xff0b0f0d;
constexpr QRgb kFoot = 0xff2f3b37;

QSize sizeFor(qreal width)
{
    const qreal screenHeight = (width - 2 * kFrame) / kAspect;
    return QSizeF(width, screenHeight + 2 * kFrame + kStand).toSize();
}

} // namespace

MonitorPicture::MonitorPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMaximumWidth(int(kWidest)); // what stands beside it follows at once
    describeAs(this, QAccessible::Graphic);
}

void MonitorPicture::setPainter(Painter painter)
{
    m_painter = std::move(painter);
    update();
}

QSize MonitorPicture::sizeHint() const
{
    return sizeFor(kWidest);
}

QSize MonitorPicture::minimumSizeHint() const
{
    return sizeFor(kNarrowest);
}

/// The largest that fits, at the left and the top, where the controls above it begin.
QRectF MonitorPicture::bodyRect() const
{
    const qreal byHeight = (height() - kStand - 2 * kFrame) * kAspect + 2 * kFrame;
    const qreal bodyWidth = std::floor(std::min({qreal(width()), byHeight, kWidest}));
    return {0.5, 0.5, bodyWidth - 1, std::round((bodyWidth - 2 * kFrame) / kAspect) + 2 * kFrame - 1};
}

QRectF MonitorPicture::screenRect() const
{
    return bodyRect().adjusted(kFrame - 0.5, kFrame - 0.5, -kFrame + 0.5, -kFrame + 0.5);
}

void MonitorPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = bodyRect();
    const QPointF foot(body.center().x(), body.bottom());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kFoot));
    painter.drawRoundedRect(QRectF(foot.x() - 3, foot.y() - 4, 6, kStand - 4), 2, 2);
    painter.drawRoundedRect(QRectF(foot.x() - kStandWidth / 2, foot.y() + kStand - 10, kStandWidth, 6), 3, 3);
    painter.setPen(QPen(QColor(Palette::kHairline), 1));
    painter.setBrush(QColor(kBody));
    painter.drawRoundedRect(body, kCorner, kCorner);
    if (!m_painter)
        return;
    const QRectF screen = screenRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    painter.setClipRect(screen);
    m_painter(painter, screen);
}
