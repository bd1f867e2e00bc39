#include "virtualdesk/loopbackstream.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace virtualdesk {

namespace {

using platform::AudioFormat;
using Result = platform::AudioResult;

constexpr int kPacketsPerSecond = 100; // the engine's period of 10 ms
constexpr std::int64_t kUnitsPerSecond = 10'000'000;
constexpr double kFullScale = 32767.0;

} // namespace

Result LoopbackStream::open(const SoundEngine &engine)
{
    if (!engine.setup.present)
        return platform::kAudioDeviceInvalidated;
    m_generation = engine.generation;
    m_device = engine.device;
    return platform::kAudioOk;
}

Result LoopbackStream::initialise(const SoundEngine &engine, std::uint32_t flags, std::int64_t duration,
                                  const AudioFormat &format)
{
    if (m_initialised)
        return platform::kAudioAlreadyInitialised;
    if (flags != platform::kStreamLoopback || format.bitsPerSample != 16)
        return platform::kAudioInvalidArgument;
    const Result supported = supportOf(engine.setup, format);
    if (supported != platform::kAudioOk)
        return supported == platform::kAudioFalse ? platform::kAudioUnsupportedFormat : supported;
    m_format = format;
    m_bufferFrames = duration * format.sampleRate / kUnitsPerSecond;
    m_initialised = true;
    return alive(engine);
}

Result LoopbackStream::alive(const SoundEngine &engine) const
{
    if (m_generation != engine.generation)
        return platform::kAudioDeviceInvalidated;
    return m_initialised ? platform::kAudioOk : platform::kAudioNotInitialised;
}

std::int64_t LoopbackStream::nowFrame(const SoundEngine &engine) const
{
    return engine.begin.msecsTo(engine.clock.now()) * m_format.sampleRate / 1000;
}

/// Where what the stream's device plays has come to.
std::int64_t LoopbackStream::heardFrame(const SoundEngine &engine) const
{
    const std::int64_t now = nowFrame(engine);
    if (m_device == engine.device)
        return now;
    return std::min<std::int64_t>(now, engine.begin.msecsTo(engine.movedAt) * m_format.sampleRate / 1000);
}

int LoopbackStream::packetFrames(const SoundEngine &engine) const
{
    return engine.setup.packetFrames > 0 ? engine.setup.packetFrames
                                         : static_cast<int>(m_format.sampleRate) / kPacketsPerSecond;
}

/// Takes in what was played since the last look. A buffer that is full loses what came first.
void LoopbackStream::capture(const SoundEngine &engine)
{
    if (!m_running)
        return;
    const std::int64_t now = heardFrame(engine);
    const std::int64_t fresh = now - m_next - m_captured;
    if (engine.setup.sound.sound == Sound::Nothing) {
        m_next = now - m_captured;
        return;
    }
    if (fresh <= 0)
        return;
    const std::int64_t room = std::max<std::int64_t>(m_bufferFrames, packetFrames(engine));
    m_captured = std::min(m_captured + fresh, room);
    m_next = now - m_captured;
}

Result LoopbackStream::start(const SoundEngine &engine)
{
    const Result result = alive(engine);
    if (result != platform::kAudioOk)
        return result;
    if (m_running)
        return platform::kAudioNotStopped;
    m_running = true;
    m_next = nowFrame(engine) - m_captured;
    return platform::kAudioOk;
}

Result LoopbackStream::stop(const SoundEngine &engine)
{
    capture(engine);
    m_running = false;
    return alive(engine);
}

Result LoopbackStream::reset(const SoundEngine &engine)
{
    if (m_running)
        return platform::kAudioNotStopped;
    m_captured = 0;
    m_held = false;
    return alive(engine);
}

Result LoopbackStream::nextPacketSize(const SoundEngine &engine, std::uint32_t &frames)
{
    const Result result = alive(engine);
    frames = 0;
    if (result != platform::kAudioOk)
        return result;
    capture(engine);
    if (m_captured >= packetFrames(engine))
        frames = static_cast<std::uint32_t>(packetFrames(engine));
    return platform::kAudioOk;
}

Result LoopbackStream::getBuffer(const SoundEngine &engine, platform::AudioPacket &packet)
{
    packet = {};
    const Result result = alive(engine);
    if (result != platform::kAudioOk)
        return result;
    if (m_held)
        return platform::kAudioOutOfOrder;
    capture(engine);
    const int frames = packetFrames(engine);
    if (m_captured < frames)
        return platform::kAudioBufferEmpty;
    const int channels = m_format.channels;
    const int rate = static_cast<int>(m_format.sampleRate);
    m_samples.resize(static_cast<std::size_t>(frames) * static_cast<std::size_t>(channels));
    std::size_t place = 0;
    for (int frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < channels; ++channel) {
            const double value = engine.setup.sound.sample(m_next + frame, channel, rate);
            m_samples[place++] = static_cast<std::int16_t>(std::lround(value * kFullScale));
        }
    }
    m_held = true;
    packet = {reinterpret_cast<const std::byte *>(m_samples.data()), static_cast<std::uint32_t>(frames),
              engine.setup.sound.sound == Sound::Silence ? platform::kBufferSilent : 0};
    return platform::kAudioOk;
}

Result LoopbackStream::releaseBuffer(const SoundEngine &engine, std::uint32_t frames)
{
    const Result result = alive(engine);
    if (result != platform::kAudioOk)
        return result;
    if (frames == 0) { // the packet is handed out again
        m_held = false;
        return platform::kAudioOk;
    }
    if (!m_held)
        return platform::kAudioOutOfOrder;
    if (frames != static_cast<std::uint32_t>(packetFrames(engine)))
        return platform::kAudioInvalidSize;
    m_held = false;
    m_captured -= frames;
    m_next += frames;
    return platform::kAudioOk;
}

} // namespace virtualdesk
