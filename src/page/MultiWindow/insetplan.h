#pragma once

#include <QRectF>
#include <Qt>

// Where the inset of picture-in-picture lies on a screen, and what a drag or a key makes of it. Nothing here is painted
// or sent.

/// By the numbers of the monitor's options: the corner 0 to 3 (bit 0 right, bit 1 bottom), the size 0 to 2.
struct Inset
{
    int place = 0;
    int size = 0;
    bool operator==(const Inset &) const = default;
};

inline constexpr int kInsetSizes = 3;

/// What the pointer has hold of: bits of the edges that can be dragged, which are those away from the corner.
enum Grip { kNoGrip = 0, kBody = 1, kWidthEdge = 2, kHeightEdge = 4 };

/// The inset on a screen of any size.
QRectF insetRect(const Inset &inset, const QRectF &screen);

/// What a press at a point would take hold of; the edges are within @p reach of it.
int gripAt(const Inset &inset, const QRectF &screen, QPointF point, double reach);

/// The corner that a rectangle is nearest to.
int placeNear(const QRectF &rect, const QRectF &screen);

/// The inset in its corner with the dragged edges at a point, no smaller than the smallest size and no larger than the
/// largest; it keeps the screen's shape.
QRectF stretched(const Inset &inset, const QRectF &screen, int grip, QPointF point);

/// The size that is nearest to a width.
int sizeNear(double width, const QRectF &screen);

/// The corner that an arrow key leads to, and the next one clockwise.
int placeTowards(int place, Qt::Key key);
int nextPlace(int place);
