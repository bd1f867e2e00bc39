#include "virtualdesk/soundsource.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include <QFile>
#include <QObject>
#include <QtEndian>

namespace virtualdesk {

namespace {

constexpr double kSweepFrom = 80; // Hz
constexpr double kSweepTo = 8000;
constexpr double kSweepSeconds = 8;
constexpr int kWaveChunkHead = 8;
constexpr int kFormatLength = 16;
constexpr std::uint16_t kPcm = 1;
constexpr std::uint16_t kFloat = 3;
constexpr std::uint16_t kExtensible = 0xFFFE;

double tone(double frequency, double seconds)
{
    return std::sin(2 * std::numbers::pi * std::fmod(frequency * seconds, 1.0));
}

/// The frequency rises by the same interval in the same time.
double sweep(double seconds)
{
    const double at = std::fmod(seconds, kSweepSeconds);
    const double rate = std::log(kSweepTo / kSweepFrom) / kSweepSeconds;
    return tone(1, kSweepFrom * (std::exp(rate * at) - 1) / rate);
}

/// The same value for the same place at every run.
double noise(std::int64_t frame, int channel)
{
    std::uint64_t bits = static_cast<std::uint64_t>(frame) * 16 + static_cast<std::uint64_t>(channel);
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
    return static_cast<double>(bits >> 40) / (1 << 23) - 1.0;
}

struct WaveFormat
{
    std::uint16_t tag = 0;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0;
    std::uint16_t bits = 0;
};

WaveFormat parseFormat(QByteArrayView chunk)
{
    WaveFormat format;
    if (chunk.size() < kFormatLength)
        return format;
    format.tag = qFromLittleEndian<quint16>(chunk.data());
    format.channels = qFromLittleEndian<quint16>(chunk.data() + 2);
    format.sampleRate = qFromLittleEndian<quint32>(chunk.data() + 4);
    format.bits = qFromLittleEndian<quint16>(chunk.data() + 14);
    if (format.tag == kExtensible && chunk.size() >= 26) // the sub-format's identifier begins with the plain tag
        format.tag = qFromLittleEndian<quint16>(chunk.data() + 24);
    return format;
}

/// Floating-point samples may be anything; what is no number is silent.
float withinScale(float sample)
{
    return std::isnan(sample) ? 0.0F : std::clamp(sample, -1.0F, 1.0F);
}

std::vector<float> parseSamples(QByteArrayView data, const WaveFormat &format)
{
    const qsizetype width = format.bits / 8;
    std::vector<float> samples;
    samples.reserve(static_cast<std::size_t>(data.size() / width));
    for (qsizetype at = 0; at + width <= data.size(); at += width) {
        if (format.tag == kFloat)
            samples.push_back(withinScale(qFromLittleEndian<float>(data.data() + at)));
        else
            samples.push_back(static_cast<float>(qFromLittleEndian<qint16>(data.data() + at)) / 32768.0F);
    }
    samples.resize(samples.size() / format.channels * format.channels);
    return samples;
}

} // namespace

std::optional<WaveData> readWave(const QString &fileName, QString &error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    WaveFormat format;
    QByteArrayView data;
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WAVE") {
        qsizetype at = 12;
        while (at + kWaveChunkHead <= bytes.size() && data.isEmpty()) {
            const qsizetype length = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
            const QByteArrayView chunk =
                QByteArrayView(bytes).sliced(at + kWaveChunkHead, std::min(length, bytes.size() - at - kWaveChunkHead));
            if (bytes.mid(at, 4) == "fmt ")
                format = parseFormat(chunk);
            else if (bytes.mid(at, 4) == "data")
                data = chunk;
            at += kWaveChunkHead + length + length % 2;
        }
    }
    const bool known = (format.tag == kPcm && format.bits == 16) || (format.tag == kFloat && format.bits == 32);
    if (!known || format.channels == 0 || format.sampleRate == 0 || format.sampleRate > INT32_MAX || data.isEmpty()) {
        error = QObject::tr("not a WAV file of 16-bit or floating-point samples");
        return std::nullopt;
    }
    return WaveData{format.channels, static_cast<int>(format.sampleRate), parseSamples(data, format)};
}

double SoundSetup::sample(std::int64_t frame, int channel, int sampleRate) const
{
    const double seconds = static_cast<double>(frame) / sampleRate;
    const double loudness = volume / 100.0;
    switch (sound) {
    case Sound::Nothing:
    case Sound::Silence:
        return 0;
    case Sound::Tone:
        return loudness * tone(frequency, seconds);
    case Sound::TwoTones:
        return loudness / 2 * (tone(frequency, seconds) + tone(secondFrequency, seconds));
    case Sound::Sweep:
        return loudness * sweep(seconds);
    case Sound::Noise:
        return loudness * noise(frame, channel);
    case Sound::Wave:
        break;
    }
    if (!wave || wave->frames() == 0)
        return 0;
    const auto frames = static_cast<std::int64_t>(wave->frames());
    // A clock that was set back comes before the beginning.
    const std::int64_t turn = static_cast<std::int64_t>(std::floor(seconds * wave->sampleRate)) % frames;
    const auto place = static_cast<std::size_t>(turn < 0 ? turn + frames : turn);
    const auto channels = static_cast<std::size_t>(wave->channels);
    return loudness *
           static_cast<double>(wave->samples[place * channels + static_cast<std::size_t>(channel) % channels]);
}

} // namespace virtualdesk
