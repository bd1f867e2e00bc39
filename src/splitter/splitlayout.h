#pragma once

#include <span>
#include <vector>

#include <QString>

// How a screen is divided, whatever its size. Sides are counted in parts of the screen's side, so that halves to tenths
// are whole numbers and two zones that share an edge name the same number.

inline constexpr int kWholeSide = 5040;
inline constexpr int kLeastSide = kWholeSide / 10; ///< of a zone
inline constexpr int kMostZones = 9;               ///< each is chosen by a digit

/// A part of a screen; right and bottom are where the next zone begins.
struct Zone
{
    int left = 0;
    int top = 0;
    int right = kWholeSide;
    int bottom = kWholeSide;
    bool operator==(const Zone &) const = default;
};

/// A division of a screen. Its zones are in reading order and cover the screen without overlapping.
struct SplitLayout
{
    QString name; ///< as the user typed it; of a fixed one its source text
    std::vector<Zone> zones;
    bool isOwn = false;
    bool operator==(const SplitLayout &) const = default;
};

/// Halves, thirds, quarters, and main and side: what every screen has.
std::span<const SplitLayout> fixedLayouts();

/// The name as the user reads it.
QString shownName(const SplitLayout &layout);

/// Whether these are zones of a layout: one to nine, none of them smaller than kLeastSide or beyond the screen, nothing
/// covered twice or left out.
bool coversScreen(std::span<const Zone> zones);

/// Sorts zones by rows, from the left in each: so they are numbered.
void putInOrder(std::vector<Zone> &zones);
