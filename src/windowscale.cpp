#include "windowscale.h"

#include <algorithm>
#include <cmath>

#include <QLocale>

namespace {

constexpr char kVariable[] = "QT_SCALE_FACTOR";

/// Points from line to line of the layout. These are whole pixels, or what is drawn anew leaves rows of what was there.
constexpr int kGrid = 8;

/// The user's own factor, which counts beside the screen's; 1 when it is none.
double factorOf(const QByteArray &text)
{
    bool isNumber = false;
    const double factor = text.toDouble(&isNumber);
    return isNumber && factor > 0 ? factor : 1;
}

} // namespace

double scaleToFit(const platform::WorkArea &area, const QSize &window)
{
    const auto share = [&area](int pixels, int points) {
        return std::floor(pixels / (points * area.scale) * 1000) / 1000; // no pixel too many by rounding
    };
    const double wide = share(area.pixels.width(), window.width());
    const double high = share(area.pixels.height(), window.height());
    const double fitting = std::clamp(std::min(wide, high), std::min(1 / area.scale, 1.0), 1.0);
    const double ratio = fitting * area.scale; // pixels of a point
    return fitting < 1 && ratio > 1 ? std::floor(ratio * kGrid) / kGrid / area.scale : fitting;
}

QSize roomFor(const platform::WorkArea &area, double ratio)
{
    const QSize points(static_cast<int>(area.pixels.width() / ratio), static_cast<int>(area.pixels.height() / ratio));
    return points.boundedTo(kWindowSize);
}

WindowScale::WindowScale(const std::optional<platform::WorkArea> &area)
{
    if (!area || area->pixels.isEmpty() || area->scale <= 0)
        return;
    if (qEnvironmentVariableIsSet(kVariable))
        m_before = qgetenv(kVariable);
    const double own = m_before ? factorOf(*m_before) : 1;
    const double fitting = scaleToFit({area->pixels, area->scale * own}, kWindowSize);
    m_isSet = fitting < 1 && qputenv(kVariable, QByteArray::number(fitting * own, 'g', QLocale::FloatingPointShortest));
}

void WindowScale::takeBack()
{
    if (!m_isSet)
        return;
    if (m_before)
        qputenv(kVariable, *m_before);
    else
        qunsetenv(kVariable);
}
