#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

// The accessory is built in several forms. All that is known of one is its row of the table in matrixform.cpp;
// everything that makes, keeps, sends or shows a frame takes that row.

/// Bands of a spectrum, each of which is a bar on the matrix.
inline constexpr std::size_t kSpectrumBands = 11;

/// A row of cells.
struct MatrixRow
{
    int cells;
    int first; ///< place of its cell 0 in the frame order
    int shift; ///< how far it begins right of the widest row, in halves of a cell
};

/// How the rows lie to one another: the odd ones between the cells of the even ones, or cell below cell.
enum class RowLattice { Staggered, Upright };

/// Where a text stands and how: as thick and as high as can be read on the cells that there are.
struct TextBand
{
    int top; ///< row
    int rows;
    int pixels; ///< of the font, in cells
    int weight; ///< of the font, 500 medium, 700 bold
};

inline constexpr int kClockDotsWide = 21;
inline constexpr int kClockDotsHigh = 7;

/// Where the clock stands. A dot is two rows high, and, on upright rows, two cells wide.
struct ClockPlace
{
    int left; ///< cells
    int top;  ///< row
};

/// Where the bars stand.
struct BarPlaces
{
    int left; ///< cells, of the first one
    int pitch;
    int width;
    std::array<int, kSpectrumBands>
        limits; ///< what the bars are scaled to: one is at most three times its limit and one
};

/// All that is known of a form.
struct MatrixForm
{
    int number;                      ///< what config.ini knows it by; never another form's
    const char *label;               ///< source text
    std::span<const MatrixRow> rows; ///< top to bottom
    RowLattice lattice;
    int cellSize; ///< pixels, in an editor until another size is chosen
    TextBand scrolling;
    TextBand standing;
    ClockPlace clock;
    BarPlaces bars;

    /// Of a whole frame.
    constexpr int cells() const
    {
        int all = 0;
        for (const MatrixRow &row : rows)
            all += row.cells;
        return all;
    }

    /// Cells of the longest row.
    constexpr int columns() const
    {
        int longest = 0;
        for (const MatrixRow &row : rows)
            longest = std::max(longest, row.cells);
        return longest;
    }
};

/// Every form there is. The first one is used until another is chosen.
std::span<const MatrixForm> matrixForms();

/// The form of a number; null when there is none.
const MatrixForm *findMatrixForm(int number);
