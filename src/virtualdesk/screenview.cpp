#include "virtualdesk/screenview.h"

#include <iterator>

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/simulatedmonitor.h"

namespace virtualdesk {

namespace {

constexpr int kBezel = 8;
constexpr int kFoot = 6;

void paintLandscape(QPainter &painter, const QSizeF &size)
{
    QLinearGradient sky(0, 0, 0, size.height() * 0.62);
    sky.setColorAt(0, QColor(0x24, 0x6c, 0xc8));
    sky.setColorAt(0.6, QColor(0x8c, 0xc4, 0xee));
    sky.setColorAt(1, QColor(0xff, 0xe2, 0xb0));
    painter.fillRect(QRectF(QPointF(), size), sky);

    QRadialGradient sun(QPointF(size.width() * 0.74, size.height() * 0.34), size.height() * 0.2);
    sun.setColorAt(0, QColor(0xff, 0xfa, 0xd8));
    sun.setColorAt(0.35, QColor(0xff, 0xe9, 0x90, 220));
    sun.setColorAt(1, QColor(0xff, 0xd0, 0x60, 0));
    painter.fillRect(QRectF(QPointF(), size), sun);

    struct Ridge
    {
        QColor color;
        double base, height, start;
    };
    const Ridge ridges[] = {{QColor(0x7a, 0x8f, 0xb8), 0.60, 0.24, 0.38},
                            {QColor(0x3f, 0x7d, 0x5b), 0.70, 0.18, 0.62},
                            {QColor(0x2c, 0x9a, 0x3c), 0.80, 0.08, 0.25}};
    for (const Ridge &ridge : ridges) {
        QPainterPath path(QPointF(0, size.height()));
        const auto at = [&](double x, double y) { return QPointF(size.width() * x, size.height() * y); };
        path.lineTo(at(0, ridge.base));
        path.quadTo(at(ridge.start * 0.5, ridge.base - ridge.height), at(ridge.start, ridge.base - ridge.height * 0.3));
        path.quadTo(at((1 + ridge.start) * 0.5, ridge.base - ridge.height * 1.2), at(1, ridge.base));
        path.lineTo(at(1, 1));
        painter.fillPath(path, ridge.color);
    }
}

void paintBars(QPainter &painter, const QRectF &area)
{
    const QColor bars[] = {Qt::white, Qt::yellow, Qt::cyan, Qt::green, Qt::magenta, Qt::red, Qt::blue, Qt::black};
    const double width = area.width() / std::size(bars);
    const double height = area.height() * 0.6;
    for (std::size_t i = 0; i < std::size(bars); ++i)
        painter.fillRect(QRectF(area.x() + static_cast<double>(i) * width, area.y(), width + 1, height), bars[i]);
    // Sixteen greys: what black level and gamma do shows here first.
    constexpr int kGreys = 16;
    for (int i = 0; i < kGreys; ++i) {
        const int grey = i * 255 / (kGreys - 1);
        painter.fillRect(QRectF(area.x() + i * area.width() / kGreys, area.y() + height, area.width() / kGreys + 1,
                                area.height() - height),
                         QColor(grey, grey, grey));
    }
}

void paintPage(QPainter &painter, const QRectF &area)
{
    painter.fillRect(area, QColor(0xf4, 0xf2, 0xec));
    QFont font = painter.font();
    painter.setPen(QColor(0x20, 0x20, 0x24));
    double y = area.y() + 4;
    for (const int pixels : {13, 10, 8}) {
        font.setPixelSize(pixels);
        painter.setFont(font);
        const QRectF line(area.x() + 6, y, area.width() - 12, pixels + 4);
        painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                         QObject::tr("Reading sample 0123"));
        y += pixels + 5;
    }
}

QImage paintScene(const QSize &size, qreal ratio)
{
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF whole(size);
    paintLandscape(painter, whole);
    paintBars(painter, QRectF(0, whole.height() * 0.84, whole.width(), whole.height() * 0.16));
    paintPage(painter, QRectF(whole.width() * 0.05, whole.height() * 0.46, whole.width() * 0.5, 52));
    return image;
}

/// Why the monitor shows nothing; empty while it is lit.
QString darknessOf(const SimulatedMonitor &monitor)
{
    if (!monitor.isPlugged())
        return QObject::tr("Unplugged");
    return monitor.isAsleep() ? QObject::tr("Asleep") : QString();
}

} // namespace

ScreenView::ScreenView(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int ScreenView::heightForWidth(int width) const
{
    return (width - 2 * kBezel) * 9 / 16 + 2 * kBezel + kFoot;
}

QRect ScreenView::screenRect() const
{
    return rect().adjusted(kBezel, kBezel, -kBezel, -kBezel - kFoot);
}

void ScreenView::show(const SimulatedMonitor &monitor)
{
    const Picture picture = pictureOf(monitor);
    const QString caption = sceneName(monitor.value(kSceneCode));
    const QString darkness = darknessOf(monitor);
    if (picture == m_picture && caption == m_caption && darkness == m_darkness && !m_developed.isNull())
        return;
    m_picture = picture;
    m_caption = caption;
    m_darkness = darkness;
    setAccessibleDescription(darkness.isEmpty() ? caption : darkness);
    develop();
}

void ScreenView::develop()
{
    if (m_scene.isNull() && !screenRect().isEmpty())
        m_scene = paintScene(screenRect().size(), devicePixelRatioF());
    m_developed = developed(m_scene, m_picture);
    update();
}

void ScreenView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_scene = QImage();
    develop();
}

void ScreenView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange && event->type() != QEvent::FontChange)
        return;
    m_scene = QImage();
    develop();
}

void ScreenView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect body = rect().adjusted(0, 0, 0, -kFoot);
    painter.setPen(QPen(QColor(27, 80, 67), 1));
    painter.setBrush(QColor(0x08, 0x0b, 0x0a));
    painter.drawRoundedRect(QRectF(body).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_darkness.isEmpty() ? QColor(0x00, 0xff, 0x71) : QColor(0xda, 0x67, 0x6d));
    painter.drawRoundedRect(QRectF(width() / 2.0 - 12, body.bottom() - 4.5, 24, 2.5), 1, 1);

    const QRect screen = screenRect();
    if (!m_darkness.isEmpty()) {
        painter.fillRect(screen, Qt::black);
        painter.setPen(QColor(0xad, 0xad, 0xad));
        painter.drawText(screen, Qt::AlignCenter, m_darkness);
        return;
    }
    painter.drawImage(screen.topLeft(), m_developed);
    QRect caption = painter.fontMetrics().boundingRect(m_caption);
    caption = QRect(screen.topLeft() + QPoint(8, 8), caption.size() + QSize(16, 8));
    painter.setBrush(QColor(0x0d, 0x12, 0x10, 190));
    painter.drawRoundedRect(caption, 5, 5);
    painter.setPen(Qt::white);
    painter.drawText(caption, Qt::AlignCenter, m_caption);
}

} // namespace virtualdesk
