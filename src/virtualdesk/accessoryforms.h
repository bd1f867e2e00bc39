#pragma once

#include <vector>

namespace virtualdesk {

// The models of the accessory as their maker knows them, by number. Nothing is shared with the program that is watched
// here.

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

/// The number of every form, in the order of their table.
std::vector<int> knownForms();

/// The form behind one in that order; behind the last comes the first.
int nextForm(int form);

/// How far a row that the form has begins right of the widest one, in halves of a cell.
int matrixRowShift(int form, int row);

} // namespace virtualdesk
