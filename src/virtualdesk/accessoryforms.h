#pragma once

#include <span>
#include <vector>

namespace virtualdesk {

// The models of the accessory as their maker knows them, by number. Nothing is shared with the program that is watched
// here.

inline constexpr int kTaperingForm = 0;
inline constexpr int kRectangleForm = 1;

/// A row of cells, and the place of its first one in the frame order.
struct MatrixRow
{
    int cells;
    int first;
};

/// The rows of a form, top to bottom; none for a number that is no form.
const std::vector<MatrixRow> &matrixRows(int form);

/// Cells of a whole frame; 0 for a number that is no form.
int matrixCells(int form);

/// Cells of the longest row; 0 for a number that is no form.
int matrixColumns(int form);

/// How far apart its rows lie, in cells of a row.
double matrixRowPitch(int form);

/// The highest number of a form.
int highestForm();

/// How far a row that the form has begins right of the widest one, in halves of a cell.
int matrixRowShift(int form, int row);

} // namespace virtualdesk
