#include "virtualdesk/picture.h"

#include <algorithm>
#include <cmath>

#include "virtualdesk/simulatedmonitor.h"

namespace virtualdesk {

namespace {

using Gain = std::array<double, 3>;

// White against that of 6500K, for the options 0 to 6.
constexpr Gain kWhites[] = {{1.00, 0.87, 0.72}, {1.00, 0.92, 0.82}, {1.00, 0.99, 0.96}, {1.00, 1.00, 1.00},
                            {0.95, 0.97, 1.00}, {0.91, 0.95, 1.00}, {0.80, 0.89, 1.00}};
constexpr double kGammas[] = {1.6, 1.8, 2.0, 2.2, 2.4, 2.6, 2.2, 2.3};
constexpr int kNightView = 7;
constexpr int kFirstUser = 8;

double share(const SimulatedMonitor &monitor, std::uint8_t code)
{
    return monitor.value(code) / static_cast<double>(monitor.maximum(code));
}

Gain whiteOf(const SimulatedMonitor &monitor)
{
    const int option = monitor.value(0x14);
    if (option < kNightView)
        return kWhites[option];
    if (option == kNightView) {
        const double warm = share(monitor, 0x15);
        return {1.0, 0.9 - 0.2 * warm, 0.75 - 0.4 * warm};
    }
    const auto first = static_cast<std::uint8_t>(0x16 + 3 * std::min(option - kFirstUser, 2));
    const auto gain = [&](int i) { return share(monitor, static_cast<std::uint8_t>(first + i)) * 1.15; };
    return {gain(0), gain(1), gain(2)};
}

double blend(const std::array<double, 6> &values, double hue)
{
    const int below = static_cast<int>(hue) % 6;
    const double part = hue - std::floor(hue);
    const auto at = [&values](int i) { return values[static_cast<std::size_t>(i % 6)]; };
    return at(below) * (1 - part) + at(below + 1) * part;
}

double hueOf(double r, double g, double b, double high, double chroma)
{
    double hue = 0;
    if (high == r)
        hue = (g - b) / chroma;
    else if (high == g)
        hue = 2 + (b - r) / chroma;
    else
        hue = 4 + (r - g) / chroma;
    return hue < 0 ? hue + 6 : hue;
}

/// Turns and stretches the colour of one pixel; grey stays grey.
QRgb recolored(QRgb pixel, const Picture &picture)
{
    const double r = qRed(pixel), g = qGreen(pixel), b = qBlue(pixel);
    const double high = std::max({r, g, b});
    const double chroma = high - std::min({r, g, b});
    if (chroma < 1)
        return pixel;
    const double hue = hueOf(r, g, b, high, chroma);
    const double turned = std::fmod(hue + blend(picture.hueTurn, hue) + 6, 6);
    const double stretch = blend(picture.saturation, hue);
    const double luma = 0.299 * r + 0.587 * g + 0.114 * b;
    const auto channel = [&](double offset) {
        const double place = std::fmod(offset + turned, 6);
        const double value = high - chroma * std::clamp(std::min(place, 4 - place), 0.0, 1.0);
        return std::clamp(static_cast<int>(luma + (value - luma) * stretch + 0.5), 0, 255);
    };
    return qRgb(channel(5), channel(3), channel(1));
}

using Curve = std::array<int, 256>;

Curve curveOf(const Picture &picture, std::size_t channel)
{
    Curve curve{};
    for (int i = 0; i < 256; ++i) {
        double value = std::pow(i / 255.0, picture.gamma / 2.2);
        value = (value - 0.5) * picture.contrast + 0.5;
        value += picture.lift * (1 - value);
        value = std::clamp(value, 0.0, 1.0) * picture.gain[channel];
        // An eye takes half the light for far more than half as bright.
        value *= std::pow(0.06 + 0.94 * picture.brightness, 0.55);
        curve[static_cast<std::size_t>(i)] = std::clamp(static_cast<int>(value * 255 + 0.5), 0, 255);
    }
    return curve;
}

} // namespace

Picture pictureOf(const SimulatedMonitor &monitor)
{
    static constexpr std::uint8_t kFirstSaturation = 0x59;
    static constexpr std::uint8_t kFirstHue = 0x9B;
    Picture picture;
    picture.brightness = share(monitor, 0x10);
    picture.contrast = 0.5 + share(monitor, 0x12) + 0.03 * monitor.value(0x41);
    picture.lift = (share(monitor, 0x42) - 0.5) * 0.3;
    picture.gamma = kGammas[monitor.value(0x26) % std::size(kGammas)];
    picture.gain = whiteOf(monitor);
    const double lowBlue = share(monitor, 0xD8);
    picture.gain[1] *= 1 - 0.12 * lowBlue;
    picture.gain[2] *= 1 - 0.5 * lowBlue;
    const double enhanced = 1 + 0.06 * monitor.value(0x40);
    for (std::size_t i = 0; i < 6; ++i) {
        picture.saturation[i] = 2 * share(monitor, static_cast<std::uint8_t>(kFirstSaturation + i)) * enhanced;
        picture.hueTurn[i] = share(monitor, static_cast<std::uint8_t>(kFirstHue + i)) - 0.5;
    }
    return picture;
}

QImage developed(const QImage &image, const Picture &picture)
{
    QImage result = image.convertToFormat(QImage::Format_RGB32);
    const std::array<Curve, 3> curves = {curveOf(picture, 0), curveOf(picture, 1), curveOf(picture, 2)};
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = recolored(line[x], picture);
            const auto at = [](int value) { return static_cast<std::size_t>(value); };
            line[x] = qRgb(curves[0][at(qRed(pixel))], curves[1][at(qGreen(pixel))], curves[2][at(qBlue(pixel))]);
        }
    }
    return result;
}

} // namespace virtualdesk
