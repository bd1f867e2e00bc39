#include "virtualdesk/windowsview.h"

#include <algorithm>
#include <vector>

#include <QPainter>

#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

constexpr int kLetters = 10; // pixels

/// From pixels of the desktop to points of the view.
QTransform fitted(const QRectF &desktop, const QSizeF &view)
{
    const qreal scale =
        std::min(view.width() / std::max(desktop.width(), 1.0), view.height() / std::max(desktop.height(), 1.0));
    return QTransform::fromTranslate(-desktop.x(), -desktop.y()) * QTransform::fromScale(scale, scale);
}

void paintWindow(QPainter &painter, const QRectF &rect, const QString &name, bool isFront)
{
    painter.setPen(isFront ? QColor(0x7b, 0xfa, 0xdb) : QColor(0x60, 0x7d, 0x71));
    painter.setBrush(isFront ? QColor(0x1b, 0x50, 0x43) : QColor(0x22, 0x2d, 0x28));
    painter.drawRect(rect);
    painter.setPen(QColor(0xc9, 0xc9, 0xc9));
    painter.drawText(rect.adjusted(3, 1, -3, -1), Qt::AlignTop | Qt::AlignLeft, name);
}

} // namespace

WindowsView::WindowsView(VirtualDesk &desk, QWidget *parent) : QWidget(parent), m_desk(desk)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    const auto repaint = [this] { update(); };
    connect(&desk.windows(), &ApplicationWindows::changed, this, repaint);
    connect(&desk.displays(), &SimulatedDisplays::changed, this, repaint);
}

void WindowsView::paintEvent(QPaintEvent *)
{
    QRect desktop;
    std::vector<QRect> bounds;
    for (const platform::DisplayHandle display : m_desk.displays().enumerate()) {
        if (const auto info = m_desk.displays().info(display)) {
            bounds.push_back(info->bounds);
            desktop |= info->bounds;
        }
    }
    QPainter painter(this);
    QFont small = font();
    small.setPixelSize(kLetters);
    painter.setFont(small);
    const QTransform place = fitted(desktop, size());
    painter.setPen(QColor(27, 80, 67));
    painter.setBrush(QColor(0x0d, 0x12, 0x10));
    for (const QRect &screen : bounds)
        painter.drawRect(place.mapRect(QRectF(screen)).adjusted(0, 0, -1, -1));
    const std::vector<Application> &list = m_desk.applications().list();
    std::vector<std::size_t> order; // from behind
    for (std::size_t i = 0; i < list.size(); ++i)
        order.push_back(list.size() - 1 - i);
    const auto front = m_desk.applications().front();
    std::stable_partition(order.begin(), order.end(), [front](std::size_t index) { return index != front; });
    for (const std::size_t index : order) {
        const auto rect = m_desk.windows().visibleRect(Applications::windowOf(index));
        using Shape = ApplicationWindow::Shape;
        const Shape shape = list[index].window.shape;
        const bool covers = shape == Shape::FullScreen && index != front; // would hide all others
        if (rect && !covers && shape != Shape::Minimised && shape != Shape::Hidden)
            paintWindow(painter, place.mapRect(QRectF(*rect)), list[index].path.section(QLatin1Char('\\'), -1),
                        index == front);
    }
}

} // namespace virtualdesk
