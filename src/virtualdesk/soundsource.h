#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <QString>

namespace virtualdesk {

/// What a simulated endpoint can play. Nothing means that no program plays at all; silence is played zeros.
enum class Sound { Nothing, Silence, Tone, TwoTones, Sweep, Noise, Wave };

/// A sound file in memory: interleaved samples from -1 to 1.
struct WaveData
{
    int channels = 0;
    int sampleRate = 0;
    std::vector<float> samples;

    std::size_t frames() const { return channels > 0 ? samples.size() / static_cast<std::size_t>(channels) : 0; }
};

/// Reads a WAV file of 16-bit integer or 32-bit floating-point samples. Nothing when it cannot be used; error says why.
std::optional<WaveData> readWave(const QString &fileName, QString &error);

/// What plays, and how loud.
struct SoundSetup
{
    Sound sound = Sound::Nothing;
    double frequency = 440;               ///< Hz, of the tone and of the first of two
    double secondFrequency = 2500;        ///< Hz
    int volume = 50;                      ///< percent of full scale
    std::shared_ptr<const WaveData> wave; ///< for Sound::Wave; repeated

    /// The sample of a channel at a place counted in frames of sampleRate, from -1 to 1.
    double sample(std::int64_t frame, int channel, int sampleRate) const;
};

} // namespace virtualdesk
