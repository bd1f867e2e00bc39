#pragma once

#include <cstdint>
#include <span>

#include <QRect>

namespace platform {

/// A part of the desktop, in its own pixels, and room for as many pixels as it has.
struct ScreenPart
{
    QRect area;
    std::span<std::uint32_t> pixels; ///< the rows from the top; 0xRRGGBB in the lower 24 bits
};

/// What the screens show, pixel by pixel. Safe from any thread, for one caller at a time.
class ScreenCapture
{
public:
    virtual ~ScreenCapture() = default;

    /// Copies parts of the desktop (a BitBlt each, from the screen's device context). False when one of them fails;
    /// what is in the pixels then means nothing.
    virtual bool copy(std::span<const ScreenPart> parts) = 0;
};

} // namespace platform
