#include "controls/picturelabel.h"

#include <QPainter>
#include <QPixmap>
#include <QRect>

#include "controls/pictures.h"

namespace {

constexpr int kKeptEdge = 96; // points: lines and round corners lie within

/// Only the rows between the edges are drawn lower: lines stay where the layout has them, and sharp.
QPixmap lowered(const QPixmap &picture, int points)
{
    const qreal ratio = picture.devicePixelRatio();
    const int width = picture.width();
    const int height = qRound(points * ratio);
    const int edge = qRound(kKeptEdge * ratio);
    if (height >= picture.height() || height < 2 * edge)
        return picture;
    QPixmap lower(width, height);
    lower.fill(Qt::transparent);
    QPainter painter(&lower);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(0, 0, width, edge), picture, QRect(0, 0, width, edge));
    painter.drawPixmap(QRect(0, edge, width, height - 2 * edge), picture,
                       QRect(0, edge, width, picture.height() - 2 * edge));
    painter.drawPixmap(QRect(0, height - edge, width, edge), picture, QRect(0, picture.height() - edge, width, edge));
    painter.end();
    lower.setDevicePixelRatio(ratio);
    return lower;
}

} // namespace

void PictureLabel::setPicture(const QString &path)
{
    m_path = path;
    m_ratio = devicePixelRatioF();
    const QPixmap picture = Pictures::load(Pictures::kRoot + path, m_ratio);
    setPixmap(m_height > 0 ? lowered(picture, m_height) : picture);
}

void PictureLabel::setPictureHeight(int points)
{
    m_height = points;
    setPicture(m_path);
}

void PictureLabel::paintEvent(QPaintEvent *event)
{
    if (!m_path.isEmpty() && m_ratio != devicePixelRatioF())
        setPicture(m_path);
    QLabel::paintEvent(event);
}
