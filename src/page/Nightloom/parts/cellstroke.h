#pragma once

#include <functional>
#include <optional>

#include <QPoint>

#include "ledmatrix/matrixframe.h"
#include "ledmatrix/matrixgeometry.h"

/// A stroke through the cells of a frame: its press toggles one, its way lights every cell.
class CellStroke
{
public:
    /// Changes this frame, which outlives it, and tells of each cell that has become another.
    CellStroke(MatrixFrame &frame, std::function<void(MatrixCell cell)> changed);

    /// From a press at a point, which lies in that cell, to end().
    void begin(MatrixCell cell, QPoint point);
    bool isUnderWay() const { return m_isUnderWay; }

    /// Goes on to a point. A fast mouse reports only some points of its way: every cell between two of them is lit as
    /// well. The one that the press put out stays out until the mouse is reported there.
    void moveTo(QPoint point, const MatrixGeometry &geometry);

    /// Without a stroke: a key does it.
    void toggle(MatrixCell cell);

    /// Whether a cell has changed since the last end.
    bool end();

private:
    void set(MatrixCell cell, std::int32_t value);

    MatrixFrame &m_frame;
    std::function<void(MatrixCell)> m_changed;
    bool m_isUnderWay = false;
    bool m_hasChanged = false;
    QPoint m_last;                      ///< point of the way
    std::optional<MatrixCell> m_putOut; ///< by the press
};
