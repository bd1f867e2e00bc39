#include "splitter/zoneplaces.h"

#include <algorithm>

/// The pixel at which the next zone begins, rounded to the nearest.
static int edgeAt(int part, int begin, int length)
{
    return begin + static_cast<int>((qint64(part) * length * 2 + kWholeSide) / (2 * kWholeSide));
}

std::vector<QRect> zoneRects(std::span<const Zone> zones, const QRect &workArea)
{
    std::vector<QRect> rects;
    for (const Zone &zone : zones) {
        const QPoint first(edgeAt(zone.left, workArea.x(), workArea.width()),
                           edgeAt(zone.top, workArea.y(), workArea.height()));
        const QPoint behind(edgeAt(zone.right, workArea.x(), workArea.width()),
                            edgeAt(zone.bottom, workArea.y(), workArea.height()));
        rects.emplace_back(first, behind - QPoint(1, 1));
    }
    return rects;
}

QRect movedInto(const QRect &rect, const QRect &area)
{
    const auto first = [](int begin, int length, int least, int room) {
        return std::max(least, std::min(begin, least + room - length));
    };
    return {QPoint(first(rect.x(), rect.width(), area.x(), area.width()),
                   first(rect.y(), rect.height(), area.y(), area.height())),
            rect.size()};
}

QMargins invisibleFrame(const QRect &window, const QRect &visible)
{
    return {std::max(0, visible.left() - window.left()), std::max(0, visible.top() - window.top()),
            std::max(0, window.right() - visible.right()), std::max(0, window.bottom() - visible.bottom())};
}
