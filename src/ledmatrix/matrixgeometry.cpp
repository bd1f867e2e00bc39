#include "ledmatrix/matrixgeometry.h"

#include <algorithm>

QSize MatrixGeometry::size() const
{
    return {m_form->columns() * m_cellSize, static_cast<int>(m_form->rows.size()) * m_cellSize};
}

QRect MatrixGeometry::cellRect(MatrixCell cell) const
{
    return {left(cell.row) + cell.column * m_cellSize, cell.row * m_cellSize, m_cellSize, m_cellSize};
}

std::optional<MatrixCell> MatrixGeometry::cellAt(QPoint point) const
{
    if (point.y() < 0 || point.y() >= static_cast<int>(m_form->rows.size()) * m_cellSize)
        return std::nullopt;
    const int number = point.y() / m_cellSize;
    const int x = point.x() - left(number);
    if (x < 0 || x >= row(number).cells * m_cellSize)
        return std::nullopt;
    return MatrixCell{number, x / m_cellSize};
}

MatrixCell MatrixGeometry::neighbour(MatrixCell cell, int columns, int rows) const
{
    const int number = std::clamp(cell.row + rows, 0, static_cast<int>(m_form->rows.size()) - 1);
    const int halves = row(cell.row).shift - row(number).shift;
    // Between two equally near cells an even row goes right and an odd one left, so that up undoes down.
    const int nearest = cell.column + (cell.row % 2 == 0 ? (halves + 1) >> 1 : halves >> 1);
    return {number, std::clamp(nearest + columns, 0, row(number).cells - 1)};
}
