#include "ledmatrix/matrixform.h"

#include <algorithm>

#include <QtGlobal>

namespace {

// The uneven steps are meant: two descending runs are interleaved, so that the rows lie staggered and the shape tapers.
constexpr std::array kTaperingCells = {25, 24, 25, 24, 24, 23, 23, 22, 23, 22, 22, 21, 21, 20, 21, 20, 20, 19, 19,
                                       18, 19, 18, 18, 17, 17, 16, 17, 16, 16, 15, 15, 14, 15, 14, 14, 13, 13, 12,
                                       13, 12, 12, 11, 11, 10, 11, 10, 10, 9,  9,  8,  9,  8,  8,  7,  7,  6,  7,
                                       6,  6,  5,  5,  4,  5,  4,  4,  3,  3,  2,  3,  2,  2,  1,  1};

/// Rows that lie between one another, the shorter ones in the middle. All even rows come first in the frame order, then
/// all odd rows.
template <std::size_t Count> constexpr auto staggeredRows(const std::array<int, Count> &cells)
{
    std::array<MatrixRow, Count> rows{};
    int first = 0;
    for (std::size_t parity = 0; parity < 2; ++parity) {
        for (std::size_t row = parity; row < Count; row += 2) {
            const int missing = *std::max_element(cells.begin(), cells.end()) - cells[row];
            rows[row] = {cells[row], first, parity == 0 ? missing / 2 * 2 : (missing - 1) / 2 * 2 + 1};
            first += cells[row];
        }
    }
    return rows;
}

/// Rows that are all alike, in the frame order from top to bottom.
template <std::size_t Count> constexpr auto uprightRows(int columns)
{
    std::array<MatrixRow, Count> rows{};
    for (std::size_t row = 0; row < Count; ++row)
        rows[row] = {columns, static_cast<int>(row) * columns, 0};
    return rows;
}

constexpr auto kTaperingRows = staggeredRows(kTaperingCells);
constexpr auto kRectangleRows = uprightRows<25>(42);

constexpr MatrixForm kForms[] = {
    // Wide enough near its top only, and thin stems would fall between its cells. A standing text is smaller, or hardly
    // two letters stood side by side.
    {.number = 0,
     .label = QT_TRANSLATE_NOOP("QObject", "Tapering"),
     .rows = kTaperingRows,
     .lattice = RowLattice::Staggered,
     .cellSize = 10,
     .scrolling = {.top = 3, .rows = 20, .pixels = 14, .weight = 700},
     .standing = {.top = 1, .rows = 15, .pixels = 12, .weight = 700},
     .clock = {.left = 2, .top = 0},
     .bars = {.left = 2, .pitch = 2, .width = 1, .limits = {5, 9, 13, 17, 21, 25, 29, 23, 17, 11, 5}}},
    {.number = 1,
     .label = QT_TRANSLATE_NOOP("QObject", "Rectangle"),
     .rows = kRectangleRows,
     .lattice = RowLattice::Upright,
     .cellSize = 13,
     .scrolling = {.top = 0, .rows = 25, .pixels = 19, .weight = 500},
     .standing = {.top = 0, .rows = 25, .pixels = 19, .weight = 500},
     .clock = {.left = 0, .top = 5},
     .bars = {.left = 0, .pitch = 4, .width = 2, .limits = {25, 25, 25, 25, 25, 25, 25, 25, 25, 25, 25}}},
};

// What a new row has to keep. A dot of the clock and a bar are as wide as their renderers draw them.
constexpr bool textsFit(const MatrixForm &form)
{
    const auto fits = [&form](const TextBand &band) {
        return band.top >= 0 && band.rows >= band.pixels &&
               static_cast<std::size_t>(band.top + band.rows) <= form.rows.size();
    };
    return fits(form.scrolling) && fits(form.standing);
}

constexpr bool clockFits(const MatrixForm &form)
{
    const int dot = form.lattice == RowLattice::Staggered ? 1 : 2;
    return static_cast<std::size_t>(form.clock.top + 2 * kClockDotsHigh) <= form.rows.size() &&
           form.clock.left + dot * kClockDotsWide <= form.columns();
}

constexpr bool barsFit(const MatrixForm &form)
{
    const auto &[left, pitch, width, limits] = form.bars;
    return width > 0 && width < pitch &&
           left + static_cast<int>(kSpectrumBands - 1) * pitch + width <= form.columns() &&
           *std::min_element(limits.begin(), limits.end()) > 0;
}

static_assert(std::all_of(std::begin(kForms), std::end(kForms), textsFit), "a text needs rows that the form has");
static_assert(std::all_of(std::begin(kForms), std::end(kForms), clockFits), "the clock needs rows and columns");
static_assert(std::all_of(std::begin(kForms), std::end(kForms), barsFit), "the bars need columns, and a limit each");

} // namespace

std::span<const MatrixForm> matrixForms()
{
    return kForms;
}

const MatrixForm *findMatrixForm(int number)
{
    const auto *form = std::find_if(std::begin(kForms), std::end(kForms),
                                    [number](const MatrixForm &each) { return each.number == number; });
    return form == std::end(kForms) ? nullptr : form;
}
