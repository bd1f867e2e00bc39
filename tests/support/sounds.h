#pragma once

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "virtualdesk/soundsource.h"

inline virtualdesk::SoundSetup playing(virtualdesk::Sound kind, double frequency = 440)
{
    virtualdesk::SoundSetup setup;
    setup.sound = kind;
    setup.frequency = frequency;
    return setup;
}

/// The first frames of a sound, as a client is given them.
inline std::vector<std::int16_t> record(const virtualdesk::SoundSetup &sound, int rate, int channels, int frames)
{
    std::vector<std::int16_t> samples;
    for (int i = 0; i < frames * channels; ++i)
        samples.push_back(
            static_cast<std::int16_t>(std::lround(32767 * sound.sample(i / channels, i % channels, rate))));
    return samples;
}

/// How many cells of a matrix, or of a part of it, are lit.
inline int litCells(std::span<const std::int32_t> frame)
{
    return static_cast<int>(std::count(frame.begin(), frame.end(), 1));
}
