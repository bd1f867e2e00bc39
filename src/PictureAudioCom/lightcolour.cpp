#include "PictureAudioCom/lightcolour.h"

#include <algorithm>
#include <cmath>

namespace {

std::array<double, 256> makeLinearLight()
{
    std::array<double, 256> light{};
    for (std::size_t step = 0; step < light.size(); ++step) {
        const double share = static_cast<double>(step) / 255;
        light[step] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    }
    return light;
}

struct Lab
{
    double lightness, a, b;
};

double perceived(double share)
{
    constexpr double kKnee = 216.0 / 24389;
    return share > kKnee ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
}

Lab labOf(QRgb color)
{
    const auto light = [](int step) { return kLinearLight[static_cast<std::size_t>(step)]; };
    const double red = light(qRed(color)), green = light(qGreen(color)), blue = light(qBlue(color));
    const double x = perceived((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = perceived(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
    const double z = perceived((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

} // namespace

const std::array<double, 256> kLinearLight = makeLinearLight();

int stepOfLight(double light)
{
    const double share = light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * 255));
}

double visibleDifference(QRgb a, QRgb b)
{
    const Lab first = labOf(a);
    const Lab second = labOf(b);
    return std::hypot(first.lightness - second.lightness, first.a - second.a, first.b - second.b);
}
