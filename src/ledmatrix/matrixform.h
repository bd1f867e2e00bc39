#pragma once

#include <atomic>
#include <span>

// The accessory is built in two forms. Everything that makes, keeps, sends or shows a frame asks here how its form is
// laid out.

inline constexpr int kTaperingForm = 0;
inline constexpr int kRectangleForm = 1;

/// The form of the accessory that is used; a number that is no form makes every producer of frames do nothing. Written
/// on the interface thread only; a sender may read the old one once more.
inline std::atomic<int> matrixForm = kTaperingForm;

/// A row of cells.
struct MatrixRow
{
    int cells;
    int first; ///< place of its cell 0 in the frame order
};

/// The rows of a form, top to bottom; none for a number that is no form.
std::span<const MatrixRow> matrixRows(int form);

/// Cells of a whole frame: 949 or 1050; 0 for a number that is no form.
int matrixCells(int form);

/// Cells of the longest row; 0 for a number that is no form.
int matrixColumns(int form);
