#pragma once

#include <vector>

#include <QMargins>
#include <QRect>

#include "splitter/splitlayout.h"

/// Where the zones are on a screen whose windows may fill @p workArea, in its pixels. A shared edge is rounded once, so
/// that the zones meet without a gap and without an overlap.
std::vector<QRect> zoneRects(std::span<const Zone> zones, const QRect &workArea);

/// A rectangle that lies within an area as far as its size lets it, moved no further than that needs; of one that is
/// larger the upper left corner stays in sight.
QRect movedInto(const QRect &rect, const QRect &area);

/// What of a window's rectangle cannot be seen, at each side: the rest of its frame. Never negative.
QMargins invisibleFrame(const QRect &window, const QRect &visible);
