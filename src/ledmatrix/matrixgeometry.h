#pragma once

#include <optional>

#include <QRect>
#include <QSize>

/// A cell by row and by its number within the row.
struct MatrixCell
{
    int row;
    int column;

    bool operator==(const MatrixCell &) const = default;
};

/// How far a row begins right of the widest one, in halves of a cell. Odd rows of the tapering form lie between the
/// cells of the even ones, and the shorter ones stand in the middle.
int matrixRowShift(int form, int row);

/// Where the cells of a form lie on a plane, each a square of the same size, row below row.
class MatrixGeometry
{
public:
    /// Cells of @p cellSize pixels.
    MatrixGeometry(int form, int cellSize) : m_form(form), m_cellSize(cellSize) {}

    int form() const { return m_form; }
    int cellSize() const { return m_cellSize; }

    /// The room that all cells take.
    QSize size() const;

    QRect cellRect(MatrixCell cell) const;

    /// The cell whose square holds the point; none beside the cells.
    std::optional<MatrixCell> cellAt(QPoint point) const;

    /// The cell beside another, at the edge the same one. Up and down go to the one that lies nearest.
    MatrixCell neighbour(MatrixCell cell, int columns, int rows) const;

private:
    int left(int row) const { return matrixRowShift(m_form, row) * m_cellSize / 2; }

    int m_form;
    int m_cellSize;
};
