#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <QByteArray>

#include "ledmatrix/matrixform.h"

/// One picture of the matrix: rows of cells, 0 off and 1 on. The flat view holds the same cells in frame order, the
/// order of files and of the wire.
class MatrixFrame
{
public:
    using Row = std::vector<std::int32_t>;

    /// All cells off.
    explicit MatrixFrame(const MatrixForm &form);

    const MatrixForm &form() const { return *m_form; }
    const std::vector<Row> &rows() const { return m_rows; }

    /// Whether the form has such a cell.
    bool contains(int row, int column) const;

    /// A cell that the form has.
    std::int32_t cell(int row, int column) const;
    void setCell(int row, int column, std::int32_t value);

    void clear();

    std::vector<std::int32_t> flat() const;

    /// Takes the cells in frame order; those that are missing become 0, those beyond the frame are ignored.
    void setFlat(std::span<const std::int32_t> cells);

    /// The cells in frame order as the digits 1 and 0, as files hold them.
    QByteArray digits() const;

    /// Takes the first bytes in frame order, "1" as on and any other byte as off; missing ones are off.
    void setDigits(QByteArrayView digits);

    bool operator==(const MatrixFrame &) const = default;

private:
    const MatrixForm *m_form; ///< never null
    std::vector<Row> m_rows;
};
