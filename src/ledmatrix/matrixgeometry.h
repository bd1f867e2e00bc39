#pragma once

#include <optional>

#include <QRect>
#include <QSize>

#include "ledmatrix/matrixform.h"

/// A cell by row and by its number within the row.
struct MatrixCell
{
    int row;
    int column;

    bool operator==(const MatrixCell &) const = default;
};

/// Where the cells of a form lie on a plane, each a square of the same size, row below row.
class MatrixGeometry
{
public:
    /// Cells of @p cellSize pixels.
    MatrixGeometry(const MatrixForm &form, int cellSize) : m_form(&form), m_cellSize(cellSize) {}

    const MatrixForm &form() const { return *m_form; }
    int cellSize() const { return m_cellSize; }

    /// The room that all cells take.
    QSize size() const;

    QRect cellRect(MatrixCell cell) const;

    /// The cell whose square holds the point; none beside the cells.
    std::optional<MatrixCell> cellAt(QPoint point) const;

    /// The cell beside another, at the edge the same one. Up and down go to the one that lies nearest.
    MatrixCell neighbour(MatrixCell cell, int columns, int rows) const;

private:
    const MatrixRow &row(int number) const { return m_form->rows[static_cast<std::size_t>(number)]; }
    int left(int number) const { return row(number).shift * m_cellSize / 2; }

    const MatrixForm *m_form; ///< never null
    int m_cellSize;
};
