#pragma once

#include <array>
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
    explicit ClockRenderer(const MatrixForm &form) : m_frame(form) {}
    virtual ~ClockRenderer() = default;

    void render(const QTime &time);

    /// The cells in frame order; valid until the next render.
    std::span<const std::int32_t> frame() const { return m_flat; }

protected:
    const MatrixForm &form() const { return m_frame.form(); }

    /// The two rows of a line of dots.
    std::array<int, 2> rowsOf(int y) const;

    /// Lights a dot of the digits, whose grid is kClockDotsWide dots wide and kClockDotsHigh high.
    virtual void light(int x, int y) = 0;

    /// Lights a cell that the form has; others are left out.
    void lightCell(int row, int column);

private:
    void renderGlyph(std::size_t glyph, int left);

    MatrixFrame m_frame;
    std::vector<std::int32_t> m_flat;
};

/// The clock of staggered rows. A dot is two cells, one of an even row and the one beside it in the odd row below.
class DateLed final : public ClockRenderer
{
public:
    using ClockRenderer::ClockRenderer;

protected:
    void light(int x, int y) override;
};

/// The clock of upright rows. A dot is a square of four cells.
class DateLedRect final : public ClockRenderer
{
public:
    using ClockRenderer::ClockRenderer;

protected:
    void light(int x, int y) override;
};

/// The renderer of a form.
std::unique_ptr<ClockRenderer> makeClockRenderer(const MatrixForm &form);
