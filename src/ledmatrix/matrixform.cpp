#include "ledmatrix/matrixform.h"

#include <algorithm>
#include <array>

namespace {

// The uneven steps are meant: two descending runs are interleaved, so that the rows lie staggered and the shape tapers.
constexpr std::array kTaperingCells = {25, 24, 25, 24, 24, 23, 23, 22, 23, 22, 22, 21, 21, 20, 21, 20, 20, 19, 19,
                                       18, 19, 18, 18, 17, 17, 16, 17, 16, 16, 15, 15, 14, 15, 14, 14, 13, 13, 12,
                                       13, 12, 12, 11, 11, 10, 11, 10, 10, 9,  9,  8,  9,  8,  8,  7,  7,  6,  7,
                                       6,  6,  5,  5,  4,  5,  4,  4,  3,  3,  2,  3,  2,  2,  1,  1};
constexpr std::size_t kRectangleRows = 25;
constexpr int kRectangleColumns = 42;

/// All even rows come first in the frame order, then all odd rows.
constexpr auto taperingRows()
{
    std::array<MatrixRow, kTaperingCells.size()> rows{};
    int first = 0;
    for (std::size_t parity = 0; parity < 2; ++parity) {
        for (std::size_t row = parity; row < rows.size(); row += 2) {
            rows[row] = {kTaperingCells[row], first};
            first += kTaperingCells[row];
        }
    }
    return rows;
}

constexpr auto rectangleRows()
{
    std::array<MatrixRow, kRectangleRows> rows{};
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row] = {kRectangleColumns, static_cast<int>(row) * kRectangleColumns};
    return rows;
}

constexpr auto kTaperingRows = taperingRows();
constexpr auto kRectangleRowTable = rectangleRows();

} // namespace

std::span<const MatrixRow> matrixRows(int form)
{
    if (form == kTaperingForm)
        return kTaperingRows;
    if (form == kRectangleForm)
        return kRectangleRowTable;
    return {};
}

int matrixCells(int form)
{
    int cells = 0;
    for (const MatrixRow &row : matrixRows(form))
        cells += row.cells;
    return cells;
}

int matrixColumns(int form)
{
    int columns = 0;
    for (const MatrixRow &row : matrixRows(form))
        columns = std::max(columns, row.cells);
    return columns;
}
