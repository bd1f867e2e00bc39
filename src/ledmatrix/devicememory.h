#pragma once

#include <cstdint>

#include <QtGlobal>

// What the accessory has room for, whoever makes it and whoever sends it.

inline constexpr int kTextMemory = 780078;      ///< cells of an uploaded text
inline constexpr qint64 kAnimationCap = 182208; ///< bytes of an uploaded animation

/// A place for an animation in the accessory. Labels are source texts.
struct AnimationMemory
{
    std::uint8_t number;     ///< in the packets of an upload, and in the choice of what is played
    const char *uploadLabel; ///< where an animation is uploaded
    const char *label;       ///< where it is chosen
};

/// All there are, in the order in which they are chosen.
inline constexpr AnimationMemory kAnimationMemories[] = {
    {0x24, QT_TRANSLATE_NOOP("QObject", "Mode1"), QT_TRANSLATE_NOOP("QObject", "Mode1")},
    {0x25, QT_TRANSLATE_NOOP("QObject", "Mode2"), QT_TRANSLATE_NOOP("QObject", "Mode2")},
    {0x26, QT_TRANSLATE_NOOP("QObject", "Mode3"), QT_TRANSLATE_NOOP("QObject", "Mode3")},
    {0x27, QT_TRANSLATE_NOOP("QObject", "Mode4"), QT_TRANSLATE_NOOP("QObject", "Standby Mode")},
    {0x28, QT_TRANSLATE_NOOP("QObject", "Mode5"), QT_TRANSLATE_NOOP("QObject", "Power Off Mode")},
};
