#include "PictureAudioCom/screencolours.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "PictureAudioCom/lightcolour.h"

namespace {

constexpr int kThinness = 180;     // a strip is so much thinner than the screen is high
constexpr int kThinnest = 4;       // pixels
constexpr int kDarkest = 24;       // what a bar still is, of 255: the black of video is 16, and encoding adds its noise
constexpr int kSpecks = 100;       // of so many pixels of a bar one may be bright: a pointer, a word, a broken pixel
constexpr double kWidestBar = 0.4; // of the screen, on either side; beyond it is the picture that is dark
constexpr int kSoftEdge = 2;       // pixels in which a scaled picture goes over into its bar

bool isDarkPixel(std::uint32_t pixel)
{
    return qRed(pixel) <= kDarkest && qGreen(pixel) <= kDarkest && qBlue(pixel) <= kDarkest;
}

bool isBar(std::ptrdiff_t bright, std::ptrdiff_t pixels)
{
    return bright * kSpecks <= pixels;
}

/// How many lines of so many pixels belong to the bar that begins with the first one.
template <typename BrightOf> int barLines(int lines, int length, BrightOf brightOf)
{
    int found = 0;
    std::ptrdiff_t bright = 0;
    for (int line = 0; line < lines && isBar(bright, std::ptrdiff_t{lines} * length); ++line) {
        const std::ptrdiff_t here = brightOf(line);
        bright += here;
        if (isBar(here, length) && isBar(bright, std::ptrdiff_t{line + 1} * length))
            found = line + 1;
    }
    return found;
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

std::ptrdiff_t ScreenColours::Strip::bright(int x, int y, int width, int height) const
{
    std::ptrdiff_t found = 0;
    for (int row = y; row < y + height; ++row) {
        const auto begin = pixels.begin() + std::ptrdiff_t{row} * area.width() + x;
        found += width - std::count_if(begin, begin + width, isDarkPixel);
    }
    return found;
}

bool ScreenColours::Strip::isDark() const
{
    const std::ptrdiff_t all = std::ptrdiff_t{area.width()} * area.height();
    std::ptrdiff_t found = 0;
    for (int row = 0; row < area.height() && isBar(found, all); ++row)
        found += bright(0, row, area.width(), 1);
    return isBar(found, all);
}

int ScreenColours::Strip::darkRows(bool fromEnd) const
{
    return barLines(area.height(), area.width(),
                    [=, this](int row) { return bright(0, fromEnd ? area.height() - 1 - row : row, area.width(), 1); });
}

int ScreenColours::Strip::darkColumns(bool fromEnd) const
{
    return barLines(area.width(), area.height(), [=, this](int column) {
        return bright(fromEnd ? area.width() - 1 - column : column, 0, 1, area.height());
    });
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
/// leave it. Where both of these are dark as well, the middle tells. Nothing when a copy failed.
std::optional<QRect> ScreenColours::findPicture(const QRect &screen, const Copy &copy)
{
    bool isDark[kSides];
    for (int side = 0; side < kSides; ++side)
        isDark[side] = m_edges[side].isDark();
    const int thick = m_edges[Top].area.height();
    QRect picture = screen;
    const auto leaveOut = [&](Side side, int dark) {
        const int bar =
            barOf(isDark[side] ? dark : 0, side == Left || side == Right ? screen.width() : screen.height());
        picture.adjust(side == Left ? bar : 0, side == Top ? bar : 0, side == Right ? -bar : 0,
                       side == Bottom ? -bar : 0);
    };
    if (!isDark[Left] || !isDark[Right]) {
        for (const Side side : {Top, Bottom}) // which leave the sides so much less to look at
            leaveOut(side,
                     thick + std::min(m_edges[Left].darkRows(side == Bottom), m_edges[Right].darkRows(side == Bottom)));
    }
    if (!isDark[Top] || !isDark[Bottom]) {
        for (const Side side : {Left, Right})
            leaveOut(side,
                     std::min(m_edges[Top].darkColumns(side == Right), m_edges[Bottom].darkColumns(side == Right)));
    }
    const bool asksDown = isDark[Left] && isDark[Right] && (isDark[Top] || isDark[Bottom]);
    const bool asksAcross = isDark[Top] && isDark[Bottom] && (isDark[Left] || isDark[Right]);
    std::vector<platform::ScreenPart> parts;
    if (asksDown)
        parts.push_back(m_down.part({picture.center().x(), screen.top(), thick, screen.height()}));
    if (asksAcross)
        parts.push_back(m_across.part({screen.left(), picture.center().y(), screen.width(), thick}));
    if (!parts.empty() && !copy(parts))
        return std::nullopt;
    for (const Side side : {Top, Bottom})
        leaveOut(side, asksDown ? m_down.darkRows(side == Bottom) : 0);
    for (const Side side : {Left, Right})
        leaveOut(side, asksAcross ? m_across.darkColumns(side == Right) : 0);
    return picture;
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
