#pragma once

#include <cstdint>
#include <span>

#include <QRect>

namespace platform {

/// What the screens show, pixel by pixel. Safe from any thread, for one caller at a time.
class ScreenCapture
{
public:
    virtual ~ScreenCapture() = default;

    /// Copies an area of the desktop, in its own pixels (BitBlt from the screen's device context): the rows from the
    /// top, 0xRRGGBB in the lower 24 bits of each pixel. There is room for as many pixels as the area has. False when a
    /// call fails; what is in the pixels then means nothing.
    virtual bool copy(const QRect &area, std::span<std::uint32_t> pixels) = 0;
};

} // namespace platform
