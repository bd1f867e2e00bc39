#include "page/MultiWindow/insetplan.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kShares[kInsetSizes] = {0.25, 0.34, 0.43}; // of the screen, in each direction
constexpr double kMargin = 0.025;                           // of its width
constexpr int kRight = 1;
constexpr int kBottom = 2;

/// A rectangle of the screen's shape in the inset's corner.
QRectF inCorner(int place, double width, const QRectF &screen)
{
    const double margin = screen.width() * kMargin;
    QRectF rect(0, 0, width, width * screen.height() / screen.width());
    const QRectF room = screen.adjusted(margin, margin, -margin, -margin);
    rect.moveTopLeft(room.topLeft());
    if (place & kRight)
        rect.moveRight(room.right());
    if (place & kBottom)
        rect.moveBottom(room.bottom());
    return rect;
}

} // namespace

QRectF insetRect(const Inset &inset, const QRectF &screen)
{
    const int size = std::clamp(inset.size, 0, kInsetSizes - 1);
    return inCorner(inset.place, screen.width() * kShares[size], screen);
}

int gripAt(const Inset &inset, const QRectF &screen, QPointF point, double reach)
{
    const QRectF rect = insetRect(inset, screen);
    if (!rect.adjusted(-reach, -reach, reach, reach).contains(point))
        return kNoGrip;
    int grip = kNoGrip;
    if (std::abs(point.x() - (inset.place & kRight ? rect.left() : rect.right())) <= reach)
        grip |= kWidthEdge;
    if (std::abs(point.y() - (inset.place & kBottom ? rect.top() : rect.bottom())) <= reach)
        grip |= kHeightEdge;
    return grip == kNoGrip && rect.contains(point) ? kBody : grip;
}

int placeNear(const QRectF &rect, const QRectF &screen)
{
    const QPointF middle = rect.center() - screen.center();
    return (middle.x() > 0 ? kRight : 0) | (middle.y() > 0 ? kBottom : 0);
}

QRectF stretched(const Inset &inset, const QRectF &screen, int grip, QPointF point)
{
    const QRectF rect = insetRect(inset, screen);
    const double shape = screen.width() / screen.height();
    const double across = inset.place & kRight ? rect.right() - point.x() : point.x() - rect.left();
    const double along = (inset.place & kBottom ? rect.bottom() - point.y() : point.y() - rect.top()) * shape;
    const double width = grip == kWidthEdge ? across : grip == kHeightEdge ? along : std::max(across, along);
    return inCorner(inset.place, std::clamp(width, screen.width() * kShares[0], screen.width() * *std::rbegin(kShares)),
                    screen);
}

int sizeNear(double width, const QRectF &screen)
{
    const auto nearest = std::min_element(std::begin(kShares), std::end(kShares), [&](double one, double other) {
        return std::abs(one * screen.width() - width) < std::abs(other * screen.width() - width);
    });
    return static_cast<int>(nearest - std::begin(kShares));
}

int placeTowards(int place, Qt::Key key)
{
    switch (key) {
    case Qt::Key_Left:
        return place & ~kRight;
    case Qt::Key_Right:
        return place | kRight;
    case Qt::Key_Up:
        return place & ~kBottom;
    case Qt::Key_Down:
        return place | kBottom;
    default:
        return place;
    }
}

int nextPlace(int place)
{
    constexpr int kNext[] = {1, 3, 0, 2};
    return kNext[std::clamp(place, 0, 3)];
}
