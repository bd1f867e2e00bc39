#pragma once

#include <array>

#include <QImage>

namespace virtualdesk {

class SimulatedMonitor;

/// What the picture values of a monitor do to an image, roughly as an eye would see it.
struct Picture
{
    double brightness = 0.5; ///< backlight, 0..1
    double contrast = 1.0;   ///< slope around middle grey
    double lift = 0.0;       ///< added to the dark parts
    double gamma = 2.2;
    std::array<double, 3> gain{1.0, 1.0, 1.0};          ///< white point, red, green, blue
    std::array<double, 6> saturation{1, 1, 1, 1, 1, 1}; ///< R, Y, G, C, B, M
    std::array<double, 6> hueTurn{};                    ///< in sixths of the hue circle, R, Y, G, C, B, M
    bool operator==(const Picture &) const = default;
};

/// The picture that a monitor shows with its current values.
Picture pictureOf(const SimulatedMonitor &monitor);

/// An image as it looks with the picture values; the result has the format RGB32.
QImage developed(const QImage &image, const Picture &picture);

} // namespace virtualdesk
