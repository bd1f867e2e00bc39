#pragma once

#include <cstdint>
#include <span>
#include <vector>

/// Draws the heights of a spectrum as a frame.
class AudioVisual
{
public:
    virtual ~AudioVisual() = default;

    virtual void clear() = 0;
    virtual void setLevels(const std::vector<std::int32_t> &levels) = 0;
    /// The cells in frame order; valid until the next call.
    virtual std::span<const std::int32_t> frame() const = 0;
};
