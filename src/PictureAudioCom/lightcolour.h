#pragma once

#include <array>

#include <QRgb>

// Colours as light adds up and as eyes tell them apart. sRGB, white D65.

/// The light of each 8-bit step, 0 to 1.
extern const std::array<double, 256> kLinearLight;

/// The 8-bit step that is nearest to so much light.
int stepOfLight(double light);

/// How far apart two colours are to the eye (CIE 1976): about 2 is just seen side by side.
double visibleDifference(QRgb a, QRgb b);
