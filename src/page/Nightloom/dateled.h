#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <QTime>

#include "ledmatrix/matrixframe.h"

/// Draws a time of day as hours and minutes; the colon is lit in the first half of every second.
class ClockRenderer
{
public:
    virtual ~ClockRenderer() = default;

    void render(const QTime &time);

    /// The cells in frame order; valid until the next render.
    std::span<const std::int32_t> frame() const { return m_flat; }

protected:
    explicit ClockRenderer(int form) : m_frame(form) {}

    /// Lights a dot of the digits, whose grid is 21 dots wide and 7 high.
    virtual void light(int x, int y) = 0;

    /// Lights a cell that the form has; others are left out.
    void lightCell(int row, int column);

private:
    void renderGlyph(std::size_t glyph, int left);

    MatrixFrame m_frame;
    std::vector<std::int32_t> m_flat;
};

/// The clock of the tapering form, in its widest rows at the top. A dot is two cells, one of an even row and the one
/// beside it in the odd row below.
class DateLed : public ClockRenderer
{
public:
    DateLed();

protected:
    void light(int x, int y) override;
};

/// The clock of the rectangle, as wide as it is. A dot is a square of four cells.
class DateLedRect : public ClockRenderer
{
public:
    DateLedRect();

protected:
    void light(int x, int y) override;
};

/// The renderer of a form; null for a number that is no form.
std::unique_ptr<ClockRenderer> makeClockRenderer(int form);
