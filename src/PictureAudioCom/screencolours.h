#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <QRgb>

#include "platform/screencapture.h"

/// What lamps behind a screen shine in to go on from its picture: its left half, its right half, and all of it.
struct ZoneColours
{
    QRgb left = 0xff000000;
    QRgb right = 0xff000000;
    QRgb global = 0xff000000;

    bool operator==(const ZoneColours &) const = default;
};

/// Finds the colours along the edges of a screen's picture. It looks at thin strips only: along the screen's edges and,
/// where those lie in black bars, along the picture's own. Knows no device, thread or time.
class ScreenColours
{
public:
    /// Copies parts of the desktop, as platform::ScreenCapture does.
    using Copy = std::function<bool(std::span<const platform::ScreenPart> parts)>;

    /// Looks once. False when a copy failed: the colours are then those of before.
    bool look(const QRect &screen, const Copy &copy);

    /// Those of the last look that succeeded; nothing before the first.
    const std::optional<ZoneColours> &colours() const { return m_colours; }

private:
    enum Side { Left, Right, Top, Bottom, kSides };

    struct Strip
    {
        QRect area;
        std::vector<std::uint32_t> pixels;

        /// Makes room for an area.
        platform::ScreenPart part(const QRect &wanted);
        bool isDark() const;
        /// How many of its rows, or columns, are dark from the beginning on, or from the end.
        int darkRows(bool fromEnd) const;
        int darkColumns(bool fromEnd) const;
        std::ptrdiff_t bright(int x, int y, int width, int height) const; ///< so many pixels
    };

    bool takeEdges(const QRect &picture, const Copy &copy);
    std::optional<QRect> findPicture(const QRect &screen, const Copy &copy);
    ZoneColours average() const;

    Strip m_edges[kSides];
    Strip m_across; ///< the middle, where the edges do not tell
    Strip m_down;
    std::optional<ZoneColours> m_colours;
};
