#include "ledmatrix/matrixgeometry.h"

#include <algorithm>

#include "ledmatrix/matrixform.h"

int matrixRowShift(int form, int row)
{
    if (form != kTaperingForm)
        return 0;
    const int missing = matrixColumns(form) - matrixRows(form)[static_cast<std::size_t>(row)].cells;
    return row % 2 == 0 ? missing / 2 * 2 : (missing - 1) / 2 * 2 + 1;
}

QSize MatrixGeometry::size() const
{
    const auto rows = matrixRows(m_form);
    return {matrixColumns(m_form) * m_cellSize, static_cast<int>(rows.size()) * m_cellSize};
}

QRect MatrixGeometry::cellRect(MatrixCell cell) const
{
    return {left(cell.row) + cell.column * m_cellSize, cell.row * m_cellSize, m_cellSize, m_cellSize};
}

std::optional<MatrixCell> MatrixGeometry::cellAt(QPoint point) const
{
    const auto rows = matrixRows(m_form);
    if (point.y() < 0 || point.y() >= static_cast<int>(rows.size()) * m_cellSize)
        return std::nullopt;
    const int row = point.y() / m_cellSize;
    const int x = point.x() - left(row);
    if (x < 0 || x >= rows[static_cast<std::size_t>(row)].cells * m_cellSize)
        return std::nullopt;
    return MatrixCell{row, x / m_cellSize};
}

MatrixCell MatrixGeometry::neighbour(MatrixCell cell, int columns, int rows) const
{
    const auto layout = matrixRows(m_form);
    const int row = std::clamp(cell.row + rows, 0, static_cast<int>(layout.size()) - 1);
    const int halves = matrixRowShift(m_form, cell.row) - matrixRowShift(m_form, row);
    // Between two equally near cells an even row goes right and an odd one left, so that up undoes down.
    const int nearest = cell.column + (cell.row % 2 == 0 ? (halves + 1) >> 1 : halves >> 1);
    return {row, std::clamp(nearest + columns, 0, layout[static_cast<std::size_t>(row)].cells - 1)};
}
