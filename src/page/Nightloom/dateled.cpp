#include "page/Nightloom/dateled.h"

#include <array>

#include "ledmatrix/matrixform.h"
#include "ledmatrix/matrixgeometry.h"

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
constexpr int kDotsWide = 21;
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

void ClockRenderer::lightCell(int row, int column)
{
    if (m_frame.contains(row, column))
        m_frame.setCell(row, column, 1);
}

DateLed::DateLed() : ClockRenderer(kTaperingForm)
{
}

void DateLed::light(int x, int y)
{
    static const int left = (matrixColumns(kTaperingForm) - kDotsWide) / 2;
    for (const int row : {2 * y, 2 * y + 1}) {
        const int halves = 2 * (left + x) + row % 2;
        lightCell(row, (halves - matrixRowShift(kTaperingForm, row)) / 2);
    }
}

DateLedRect::DateLedRect() : ClockRenderer(kRectangleForm)
{
}

void DateLedRect::light(int x, int y)
{
    constexpr int kTop = 5; // of 25 rows, 14 are lit
    for (const int row : {kTop + 2 * y, kTop + 2 * y + 1}) {
        lightCell(row, 2 * x);
        lightCell(row, 2 * x + 1);
    }
}

std::unique_ptr<ClockRenderer> makeClockRenderer(int form)
{
    if (form == kTaperingForm)
        return std::make_unique<DateLed>();
    if (form == kRectangleForm)
        return std::make_unique<DateLedRect>();
    return nullptr;
}
