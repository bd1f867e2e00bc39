#include "page/Nightloom/render/dateled.h"

#include <array>

namespace {

constexpr int kGlyphWidth = 4;
constexpr std::size_t kGlyphHeight = 7;
constexpr std::size_t kColon = 10;

/// The digits and the colon, row by row, the leftmost dot in the highest of four bits.
constexpr std::array<std::array<std::uint8_t, kGlyphHeight>, 11> kGlyphs = {{
    {0b0110, 0b1001, 0b1001, 0b1001, 0b1001, 0b1001, 0b0110},
    {0b0010, 0b0110, 0b0010, 0b0010, 0b0010, 0b0010, 0b0111},
    {0b0110, 0b1001, 0b0001, 0b0010, 0b0100, 0b1000, 0b1111},
    {0b0110, 0b1001, 0b0001, 0b0110, 0b0001, 0b1001, 0b0110},
    {0b0010, 0b0110, 0b1010, 0b1010, 0b1111, 0b0010, 0b0010},
    {0b1111, 0b1000, 0b1110, 0b0001, 0b0001, 0b1001, 0b0110},
    {0b0110, 0b1000, 0b1000, 0b1110, 0b1001, 0b1001, 0b0110},
    {0b1111, 0b0001, 0b0001, 0b0010, 0b0010, 0b0100, 0b0100},
    {0b0110, 0b1001, 0b1001, 0b0110, 0b1001, 0b1001, 0b0110},
    {0b0110, 0b1001, 0b1001, 0b0111, 0b0001, 0b0001, 0b0110},
    {0b0000, 0b0000, 0b1000, 0b0000, 0b1000, 0b0000, 0b0000}, // as wide as its dots
}};

/// Where the five glyphs begin: a dot between any two.
constexpr std::array kLefts = {0, 5, 10, 12, 17};
constexpr int kHalfSecond = 500; // ms

} // namespace

void ClockRenderer::render(const QTime &time)
{
    m_frame.clear();
    const auto digit = [](int number) { return static_cast<std::size_t>(number); };
    renderGlyph(digit(time.hour() / 10), kLefts[0]);
    renderGlyph(digit(time.hour() % 10), kLefts[1]);
    if (time.msec() < kHalfSecond)
        renderGlyph(kColon, kLefts[2]);
    renderGlyph(digit(time.minute() / 10), kLefts[3]);
    renderGlyph(digit(time.minute() % 10), kLefts[4]);
    m_flat = m_frame.flat();
}

void ClockRenderer::renderGlyph(std::size_t glyph, int left)
{
    for (std::size_t y = 0; y < kGlyphHeight; ++y) {
        for (int x = 0; x < kGlyphWidth; ++x) {
            if ((kGlyphs[glyph][y] >> (kGlyphWidth - 1 - x) & 1) != 0)
                light(left + x, static_cast<int>(y));
        }
    }
}

std::array<int, 2> ClockRenderer::rowsOf(int y) const
{
    const int upper = form().clock.top + 2 * y;
    return {upper, upper + 1};
}

void ClockRenderer::lightCell(int row, int column)
{
    if (m_frame.contains(row, column))
        m_frame.setCell(row, column, 1);
}

void DateLed::light(int x, int y)
{
    for (const int row : rowsOf(y)) {
        const int shift = form().rows[static_cast<std::size_t>(row)].shift;
        lightCell(row, (2 * (form().clock.left + x) + shift % 2 - shift) / 2);
    }
}

void DateLedRect::light(int x, int y)
{
    for (const int row : rowsOf(y)) {
        lightCell(row, form().clock.left + 2 * x);
        lightCell(row, form().clock.left + 2 * x + 1);
    }
}

std::unique_ptr<ClockRenderer> makeClockRenderer(const MatrixForm &form)
{
    switch (form.lattice) {
    case RowLattice::Staggered:
        return std::make_unique<DateLed>(form);
    case RowLattice::Upright:
        break;
    }
    return std::make_unique<DateLedRect>(form);
}
