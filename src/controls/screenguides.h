#pragma once

#include <QSize>

class QPainter;
class QRectF;

// Lines that a monitor lays over a desktop as aids: drawn with the painter's pen, which says how they look.
namespace screenguides {

/// A desktop with a document, for things to be laid over.
void drawDesktop(QPainter &painter, const QRectF &screen);

/// The outline of a sheet in the middle of the screen, in millimetres of a screen that is 340 mm high, and below it how
/// large it is.
void drawSheet(QPainter &painter, const QRectF &screen, const QSize &millimetres);

/// Lines that divide the screen into columns and rows of one size.
void drawGrid(QPainter &painter, const QRectF &screen, int columns, int rows);

/// A ruler along the left and the top edge.
void drawRuler(QPainter &painter, const QRectF &screen);

/// A protractor around the middle.
void drawAngleRuler(QPainter &painter, const QRectF &screen);

/// A cross of guide lines through the middle, with marks.
void drawAlignmentAid(QPainter &painter, const QRectF &screen);

/// Lines to compose a picture by.
void drawTriangle(QPainter &painter, const QRectF &screen);
void drawFrame(QPainter &painter, const QRectF &screen);
void drawGoldenSection(QPainter &painter, const QRectF &screen);
void drawRound(QPainter &painter, const QRectF &screen);

} // namespace screenguides
