#pragma once

#include <QtGlobal>

// What the accessory has room for, whoever makes it and whoever sends it.

inline constexpr int kTextMemory = 780078;      ///< cells of an uploaded text
inline constexpr qint64 kAnimationCap = 182208; ///< bytes of an uploaded animation
