#include "page/Nightloom/render/eventpictures.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr int kDotsWide = 15;
constexpr int kDotsHigh = 12;
constexpr int kTaperingTop = 4; // row: as low as the rows are wide enough

/// A picture's dots, a line of text a line.
using EventDots = std::array<std::string_view, kDotsHigh>;

constexpr std::array<EventDots, kGameEvents> kPictures = {{
    {"....#######....", // a skull
     "...#########...", //
     "..###########..", //
     "..##...#...##..", //
     "..##...#...##..", //
     "..##...#...##..", //
     "..#####.#####..", //
     "...####.####...", //
     "....#######....", //
     "....#.#.#.#....", //
     "....#.#.#.#....", //
     "..............."},
    {"...............", // two
     "...............", //
     ".#####...#####.", //
     "#######.#######", //
     "#..#..#.#..#..#", //
     "#..#..#.#..#..#", //
     "###.###.###.###", //
     ".#####...#####.", //
     ".#.#.#...#.#.#.", //
     "...............", //
     "...............", //
     "..............."},
    {".....#####.....", // three
     "....#######....", //
     "....#..#..#....", //
     "....###.###....", //
     ".....#####.....", //
     ".....#.#.#.....", //
     ".#####...#####.", //
     "#######.#######", //
     "#..#..#.#..#..#", //
     "###.###.###.###", //
     ".#####...#####.", //
     ".#.#.#...#.#.#."},
    {"....###........", // two who stand together
     "...#####.......", //
     "...#####..###..", //
     "....###..#####.", //
     ".........#####.", //
     "..#######.###..", //
     ".#########.....", //
     ".#########.###.", //
     ".#########.####", //
     ".#########.####", //
     ".#########.####", //
     "..............."},
    {".......#.......", // a head in the cross hairs
     "....#######....", //
     "...##..#..##...", //
     "..##.......##..", //
     "..#...###...#..", //
     ".###..###..###.", //
     "..#...###...#..", //
     "..##.......##..", //
     "...##..#..##...", //
     "....#######....", //
     ".......#.......", //
     "..............."},
    {"...............", // a heart that breaks
     "...###...###...", //
     "..#####.#####..", //
     ".######..#####.", //
     ".#####..######.", //
     ".######..#####.", //
     "..####..#####..", //
     "...####..###...", //
     "....##..###....", //
     ".....##..#.....", //
     "......#.#......", //
     ".......#......."},
    {"...#########...", // a cup
     ".#############.", //
     ".#.#########.#.", //
     ".#.#########.#.", //
     "..###########..", //
     "....#######....", //
     ".....#####.....", //
     "......###......", //
     ".......#.......", //
     "......###......", //
     "....#######....", //
     "...#########..."},
    {"....#######....", // a sad face
     "...#.......#...", //
     "..#.........#..", //
     ".#...#...#...#.", //
     ".#...#...#...#.", //
     ".#...........#.", //
     ".#...........#.", //
     ".#....###....#.", //
     "..#..#...#..#..", //
     "...#.......#...", //
     "....#######....", //
     "..............."},
}};

constexpr bool isWhole(const EventDots &picture)
{
    return std::all_of(picture.begin(), picture.end(), [](std::string_view line) { return line.size() == kDotsWide; });
}
static_assert(std::all_of(kPictures.begin(), kPictures.end(), isWhole), "each line is as wide as the picture");

void light(MatrixFrame &frame, int row, int column)
{
    if (frame.contains(row, column))
        frame.setCell(row, column, 1);
}

/// A dot is as big as one of the clock's: two rows high, and on upright rows two cells wide.
void lightDot(MatrixFrame &frame, int x, int y)
{
    const MatrixForm &form = frame.form();
    const bool isStaggered = form.lattice == RowLattice::Staggered;
    const int wide = isStaggered ? 1 : 2;
    const int left = (form.columns() - kDotsWide * wide) / 2 + x * wide;
    const int top = isStaggered ? kTaperingTop : (static_cast<int>(form.rows.size()) - 2 * kDotsHigh) / 2;
    for (int row = top + 2 * y; row < top + 2 * y + 2; ++row) {
        const int shift = form.rows[static_cast<std::size_t>(row)].shift;
        for (int column = 0; column < wide; ++column)
            light(frame, row, (2 * (left + column) + shift % 2 - shift) / 2);
    }
}

} // namespace

MatrixFrame eventPicture(const MatrixForm &form, GameEvent event)
{
    MatrixFrame frame(form);
    const EventDots &picture = kPictures[static_cast<std::size_t>(event)];
    for (int y = 0; y < kDotsHigh; ++y) {
        for (int x = 0; x < kDotsWide; ++x) {
            if (picture[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#')
                lightDot(frame, x, y);
        }
    }
    return frame;
}
