#pragma once

#include <QPointF>
#include <QString>

class QPainter;
class QRectF;

// What a monitor lays over a game, pixel by pixel: one point is one pixel of the monitor.
namespace gameoverlays {

/// The middle of a crosshair on a screen: @p place is 0 for the top to 4 for the bottom, 2 is the middle.
QPointF crosshairCentre(const QRectF &screen, int place);

/// A crosshair around a point. @p shape is 1 to 6; @p colour 0 to 7, of which 7 is the opposite of what lies behind.
/// @p scale enlarges each pixel.
void drawCrosshair(QPainter &painter, const QPointF &centre, int shape, int colour, int scale = 1);

/// A small box with a text in a corner of the screen: 0 top left, 1 top right, 2 bottom left, 3 bottom right.
void drawReadout(QPainter &painter, const QRectF &screen, int corner, const QString &text);

/// Darkens the rim of the screen, 0 a little to 2 strongly.
void drawFocusDimming(QPainter &painter, const QRectF &screen, int level);

} // namespace gameoverlays
