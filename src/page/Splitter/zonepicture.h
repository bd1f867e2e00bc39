#pragma once

#include <optional>

#include <QRectF>

#include "splitter/splitlayout.h"

class QPainter;

/// How zones are drawn.
struct ZoneLook
{
    qreal gap = 4;                          ///< between zones, in pixels
    int digits = 0;                         ///< pixels of the numbers; 0 for none
    std::optional<std::size_t> marked = {}; ///< place among the zones
    bool isLit = false;                     ///< of a layout that is chosen
};

/// Where a zone is on a picture of the screen.
QRectF zoneOnPicture(const Zone &zone, const QRectF &screen);

/// Draws the zones of a layout, numbered from 1, over the picture of a screen.
void drawZones(QPainter &painter, const QRectF &screen, std::span<const Zone> zones, const ZoneLook &look);
