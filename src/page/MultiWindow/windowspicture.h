#pragma once

#include "page/engine/panelpicture.h"

class QPainter;
class QRectF;

/// The windows of the inputs on the drawn monitor.
extern const PanelPicture kWindowsPicture;

/// One of them, by its number from 1; the small one has an edge, dashed where it is only thought of.
void drawWindow(QPainter &painter, const QRectF &rect, int number);
void drawWindowEdge(QPainter &painter, const QRectF &rect, bool isDashed);
