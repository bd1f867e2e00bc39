#include "PictureAudioCom/screencolours.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "PictureAudioCom/lightcolour.h"

namespace {

constexpr int kThinness = 180;     // a strip is so much thinner than the screen is high
constexpr int kThinnest = 4;       // pixels
constexpr int kDarkest = 16;       // what a bar still is, of 255: films are not quite black there
constexpr double kWidestBar = 0.4; // of the screen, on either side; beyond it is the picture that is dark
constexpr int kSoftEdge = 2;       // pixels in which a scaled picture goes over into its bar

bool isDarkPixel(std::uint32_t pixel)
{
    return qRed(pixel) <= kDarkest && qGreen(pixel) <= kDarkest && qBlue(pixel) <= kDarkest;
}

constexpr double kUnit = 65535; // of light: whole numbers add up faster

std::array<std::uint32_t, 256> makeUnits()
{
    std::array<std::uint32_t, 256> units{};
    std::ranges::transform(kLinearLight, units.begin(),
                           [](double light) { return static_cast<std::uint32_t>(std::lround(light * kUnit)); });
    return units;
}

/// Light, added up.
struct Sum
{
    std::uint64_t red = 0, green = 0, blue = 0;
    std::size_t pixels = 0;

    void add(std::span<const std::uint32_t> row)
    {
        static const std::array<std::uint32_t, 256> kUnits = makeUnits();
        std::uint32_t r = 0, g = 0, b = 0; // enough for the 65536 pixels that no row has
        for (const std::uint32_t pixel : row) {
            r += kUnits[pixel >> 16 & 0xff];
            g += kUnits[pixel >> 8 & 0xff];
            b += kUnits[pixel & 0xff];
        }
        red += r;
        green += g;
        blue += b;
        pixels += row.size();
    }

    Sum operator+(const Sum &other) const
    {
        return {red + other.red, green + other.green, blue + other.blue, pixels + other.pixels};
    }

    QRgb colour() const
    {
        const double all = kUnit * static_cast<double>(std::max<std::size_t>(pixels, 1));
        const auto step = [all](std::uint64_t sum) { return stepOfLight(static_cast<double>(sum) / all); };
        return qRgb(step(red), step(green), step(blue));
    }
};

int thicknessOf(const QRect &screen)
{
    return std::clamp(screen.height() / kThinness, std::min(kThinnest, screen.height()), screen.height());
}

/// A bar as it is left out: not one that would leave nothing, and with the soft edge behind it.
int barOf(int dark, int extent)
{
    if (dark == 0 || dark > extent * kWidestBar)
        return 0;
    return dark + kSoftEdge;
}

} // namespace

bool ScreenColours::Strip::isDark(int x, int y, int width, int height) const
{
    for (int row = y; row < y + height; ++row) {
        const auto begin = pixels.begin() + std::ptrdiff_t{row} * area.width() + x;
        if (!std::all_of(begin, begin + width, isDarkPixel))
            return false;
    }
    return true;
}

bool ScreenColours::Strip::isDark() const
{
    return isDark(0, 0, area.width(), area.height());
}

int ScreenColours::Strip::darkRows(bool fromEnd) const
{
    int dark = 0;
    while (dark < area.height() && isDark(0, fromEnd ? area.height() - 1 - dark : dark, area.width(), 1))
        ++dark;
    return dark;
}

int ScreenColours::Strip::darkColumns(bool fromEnd) const
{
    int dark = 0;
    while (dark < area.width() && isDark(fromEnd ? area.width() - 1 - dark : dark, 0, 1, area.height()))
        ++dark;
    return dark;
}

platform::ScreenPart ScreenColours::Strip::part(const QRect &wanted)
{
    area = wanted;
    pixels.resize(static_cast<std::size_t>(area.width()) * static_cast<std::size_t>(area.height()));
    return {area, pixels};
}

/// Top and bottom go from edge to edge; left and right lie between them, so that no pixel counts twice.
bool ScreenColours::takeEdges(const QRect &picture, const Copy &copy)
{
    const int thick = std::min({thicknessOf(picture), picture.width(), std::max(1, picture.height() / 3)});
    const QRect between = picture.adjusted(0, thick, 0, -thick);
    const platform::ScreenPart parts[] = {
        m_edges[Top].part({picture.left(), picture.top(), picture.width(), thick}),
        m_edges[Bottom].part({picture.left(), between.bottom() + 1, picture.width(), thick}),
        m_edges[Left].part({picture.left(), between.top(), thick, between.height()}),
        m_edges[Right].part({picture.right() + 1 - thick, between.top(), thick, between.height()})};
    return copy(parts);
}

/// The screen without its bars, as the edges that were taken tell: how wide a bar is, is seen where the edges beside it
/// leave it. Where all edges are dark, the middle tells. Nothing when a copy failed.
std::optional<QRect> ScreenColours::findPicture(const QRect &screen, const Copy &copy)
{
    bool isDark[kSides];
    for (int side = 0; side < kSides; ++side)
        isDark[side] = m_edges[side].isDark();
    const auto rows = [&](bool fromEnd) {
        const int thick = m_edges[Top].area.height(); // which the sides leave to it
        return thick + std::min(m_edges[Left].darkRows(fromEnd), m_edges[Right].darkRows(fromEnd));
    };
    const auto columns = [&](bool fromEnd) {
        return std::min(m_edges[Top].darkColumns(fromEnd), m_edges[Bottom].darkColumns(fromEnd));
    };
    int top = isDark[Top] ? rows(false) : 0;
    int bottom = isDark[Bottom] ? rows(true) : 0;
    int left = isDark[Left] ? columns(false) : 0;
    int right = isDark[Right] ? columns(true) : 0;
    if (std::ranges::all_of(isDark, std::identity())) {
        const int thick = m_edges[Top].area.height();
        const platform::ScreenPart parts[] = {
            m_down.part({screen.center().x(), screen.top(), thick, screen.height()}),
            m_across.part({screen.left(), screen.center().y(), screen.width(), thick})};
        if (!copy(parts))
            return std::nullopt;
        top = m_down.darkRows(false);
        bottom = m_down.darkRows(true);
        left = m_across.darkColumns(false);
        right = m_across.darkColumns(true);
    }
    return screen.adjusted(barOf(left, screen.width()), barOf(top, screen.height()), -barOf(right, screen.width()),
                           -barOf(bottom, screen.height()));
}

ZoneColours ScreenColours::average() const
{
    Sum halves[2]; // left, right
    for (const Strip &edge : m_edges) {
        const int width = edge.area.width();
        const int middle =
            std::clamp(m_edges[Top].area.center().x() + 1 - edge.area.left(), 0, width); // a column of it
        for (int row = 0; row < edge.area.height(); ++row) {
            const std::span pixels(edge.pixels.data() + std::ptrdiff_t{row} * width, static_cast<std::size_t>(width));
            halves[0].add(pixels.first(static_cast<std::size_t>(middle)));
            halves[1].add(pixels.subspan(static_cast<std::size_t>(middle)));
        }
    }
    return {halves[0].colour(), halves[1].colour(), (halves[0] + halves[1]).colour()};
}

bool ScreenColours::look(const QRect &screen, const Copy &copy)
{
    if (screen.width() < kThinnest || screen.height() < kThinnest || !takeEdges(screen, copy))
        return false;
    const std::optional<QRect> picture = findPicture(screen, copy);
    if (!picture || (*picture != screen && !takeEdges(*picture, copy)))
        return false;
    m_colours = average();
    return true;
}
