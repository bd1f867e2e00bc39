#pragma once

#include "ledmatrix/matrixframe.h"
#include "ledmatrix/matrixgeometry.h"

class QPainter;

/// Draws the cells of a frame that meet an area.
/// @param behind  a frame that shines faintly through where the first one is dark; null for none
void drawMatrix(QPainter &painter, const MatrixGeometry &geometry, const QRect &area, const MatrixFrame &frame,
                const MatrixFrame *behind);

/// Draws the outline of the cell that the keyboard is at.
void drawMatrixCursor(QPainter &painter, const MatrixGeometry &geometry, MatrixCell cell);
