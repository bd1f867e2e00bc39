#include "virtualdesk/simulatedendpoint.h"

#include <algorithm>
#include <cmath>

namespace virtualdesk {

namespace {

using platform::AudioFormat;
using Result = platform::AudioResult;

constexpr int kPacketsPerSecond = 100; // the engine's period of 10 ms
constexpr std::int64_t kUnitsPerSecond = 10'000'000;
constexpr double kFullScale = 32767.0;
constexpr std::uint16_t kExtraSize = 22;

bool isExtensible(MixKind mix)
{
    return mix == MixKind::ExtensibleFloat || mix == MixKind::ExtensibleInteger;
}

bool isFloat(MixKind mix)
{
    return mix == MixKind::ExtensibleFloat || mix == MixKind::Float;
}

bool isConsistent(const AudioFormat &format)
{
    return format.blockAlign == format.channels * format.bitsPerSample / 8 &&
           format.bytesPerSecond == format.blockAlign * format.sampleRate;
}

} // namespace

SimulatedEndpoint::SimulatedEndpoint(platform::Clock &clock, const EndpointSetup &setup)
    : m_clock(clock), m_begin(clock.now()), m_setup(setup)
{
}

EndpointSetup SimulatedEndpoint::setup() const
{
    const std::lock_guard lock(m_mutex);
    return m_setup;
}

void SimulatedEndpoint::play(const SoundSetup &sound)
{
    {
        const std::lock_guard lock(m_mutex);
        m_setup.sound = sound;
    }
    announce();
}

void SimulatedEndpoint::change(const std::function<void(EndpointSetup &)> &edit)
{
    {
        const std::lock_guard lock(m_mutex);
        edit(m_setup);
        ++m_generation;
    }
    announce();
}

void SimulatedEndpoint::moveDefault(const std::function<void(EndpointSetup &)> &edit)
{
    {
        const std::lock_guard lock(m_mutex);
        if (edit)
            edit(m_setup);
        ++m_device;
        m_movedAt = m_clock.now();
    }
    announce();
}

void SimulatedEndpoint::setPresent(bool present)
{
    change([present](EndpointSetup &setup) { setup.present = present; });
}

void SimulatedEndpoint::setServiceRunning(bool running)
{
    {
        const std::lock_guard lock(m_mutex);
        m_serviceRunning = running;
        ++m_generation; // a service that comes back does not know the clients of before
    }
    announce();
}

bool SimulatedEndpoint::serviceRunning() const
{
    const std::lock_guard lock(m_mutex);
    return m_serviceRunning;
}

void SimulatedEndpoint::fail(const AudioFault &fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.push_back(fault);
}

int SimulatedEndpoint::count(AudioCall call) const
{
    const std::lock_guard lock(m_mutex);
    return m_counts[static_cast<std::size_t>(call)];
}

void SimulatedEndpoint::resetCounts()
{
    const std::lock_guard lock(m_mutex);
    m_counts = {};
}

int SimulatedEndpoint::objects() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_tokens.use_count()) - 1;
}

void SimulatedEndpoint::setListener(std::function<void()> changed)
{
    const std::lock_guard lock(m_listenerMutex);
    m_listener = std::move(changed);
}

void SimulatedEndpoint::announce()
{
    const std::lock_guard lock(m_listenerMutex);
    if (m_listener)
        m_listener();
}

std::shared_ptr<void> SimulatedEndpoint::token()
{
    const std::lock_guard lock(m_mutex);
    return m_tokens;
}

Result SimulatedEndpoint::enter(AudioCall call)
{
    std::unique_lock lock(m_mutex);
    const int number = ++m_counts[static_cast<std::size_t>(call)];
    if (m_probe) { // it may change what is guarded
        lock.unlock();
        m_probe(call, number);
        lock.lock();
    }
    const auto fault = std::find_if(m_faults.begin(), m_faults.end(),
                                    [call](const AudioFault &each) { return each.call == call && each.times != 0; });
    if (fault != m_faults.end()) {
        if (fault->times != kForEver)
            --fault->times;
        return fault->result;
    }
    if (!m_serviceRunning && call >= AudioCall::Activate && call != AudioCall::RegisterTask)
        return platform::kAudioServiceNotRunning;
    return call == AudioCall::DefaultEndpoint && !m_setup.present ? platform::kAudioNotFound : platform::kAudioOk;
}

Result SimulatedEndpoint::open(Stream &stream)
{
    const std::lock_guard lock(m_mutex);
    if (!m_setup.present)
        return platform::kAudioDeviceInvalidated;
    stream.generation = m_generation;
    stream.device = m_device;
    return platform::kAudioOk;
}

AudioFormat SimulatedEndpoint::mixFormat() const
{
    const std::lock_guard lock(m_mutex);
    const bool extensible = isExtensible(m_setup.mix);
    const bool floating = isFloat(m_setup.mix);
    AudioFormat format;
    format.tag = extensible ? platform::kFormatExtensible : floating ? platform::kFormatFloat : platform::kFormatPcm;
    format.channels = static_cast<std::uint16_t>(m_setup.channels);
    format.sampleRate = static_cast<std::uint32_t>(m_setup.sampleRate);
    format.bitsPerSample = floating ? 32 : 16;
    format.blockAlign = static_cast<std::uint16_t>(format.channels * format.bitsPerSample / 8);
    format.bytesPerSecond = format.blockAlign * format.sampleRate;
    if (extensible) {
        format.extraSize = kExtraSize;
        format.validBits = format.bitsPerSample;
        format.channelMask = (1u << m_setup.channels) - 1;
        format.subFormat = floating ? platform::kSubFormatFloat : platform::kSubFormatPcm;
    }
    return format;
}

Result SimulatedEndpoint::isFormatSupported(const AudioFormat &format) const
{
    const std::lock_guard lock(m_mutex);
    if (!isConsistent(format))
        return platform::kAudioInvalidArgument;
    const bool rate = m_setup.convertsRates || format.sampleRate == static_cast<std::uint32_t>(m_setup.sampleRate);
    return rate && format.channels == m_setup.channels ? platform::kAudioOk : platform::kAudioFalse;
}

Result SimulatedEndpoint::initialise(Stream &stream, std::uint32_t flags, std::int64_t duration,
                                     const AudioFormat &format)
{
    if (stream.initialised)
        return platform::kAudioAlreadyInitialised;
    if (flags != platform::kStreamLoopback || format.bitsPerSample != 16)
        return platform::kAudioInvalidArgument;
    const Result supported = isFormatSupported(format);
    if (supported != platform::kAudioOk)
        return supported == platform::kAudioFalse ? platform::kAudioUnsupportedFormat : supported;
    const std::lock_guard lock(m_mutex);
    stream.format = format;
    stream.bufferFrames = duration * format.sampleRate / kUnitsPerSecond;
    stream.initialised = true;
    return alive(stream);
}

Result SimulatedEndpoint::alive(const Stream &stream) const
{
    if (stream.generation != m_generation)
        return platform::kAudioDeviceInvalidated;
    return stream.initialised ? platform::kAudioOk : platform::kAudioNotInitialised;
}

std::int64_t SimulatedEndpoint::nowFrame(const Stream &stream) const
{
    return m_begin.msecsTo(m_clock.now()) * stream.format.sampleRate / 1000;
}

/// Where what the stream's device plays has come to.
std::int64_t SimulatedEndpoint::heardFrame(const Stream &stream) const
{
    const std::int64_t now = nowFrame(stream);
    if (stream.device == m_device)
        return now;
    return std::min<std::int64_t>(now, m_begin.msecsTo(m_movedAt) * stream.format.sampleRate / 1000);
}

int SimulatedEndpoint::packetFrames(const Stream &stream) const
{
    return m_setup.packetFrames > 0 ? m_setup.packetFrames
                                    : static_cast<int>(stream.format.sampleRate) / kPacketsPerSecond;
}

/// Takes in what was played since the last look. A buffer that is full loses what comes.
void SimulatedEndpoint::capture(Stream &stream)
{
    if (!stream.running)
        return;
    const std::int64_t now = heardFrame(stream);
    const std::int64_t fresh = now - stream.next - stream.captured;
    if (m_setup.sound.sound == Sound::Nothing) {
        stream.next = now - stream.captured;
        return;
    }
    const std::int64_t room = std::max<std::int64_t>(stream.bufferFrames, packetFrames(stream));
    stream.captured = std::min(stream.captured + std::max<std::int64_t>(fresh, 0), room);
}

Result SimulatedEndpoint::start(Stream &stream)
{
    const std::lock_guard lock(m_mutex);
    const Result result = alive(stream);
    if (result != platform::kAudioOk)
        return result;
    if (stream.running)
        return platform::kAudioNotStopped;
    stream.running = true;
    stream.next = nowFrame(stream) - stream.captured;
    return platform::kAudioOk;
}

Result SimulatedEndpoint::stop(Stream &stream)
{
    const std::lock_guard lock(m_mutex);
    capture(stream);
    stream.running = false;
    return alive(stream);
}

Result SimulatedEndpoint::reset(Stream &stream)
{
    const std::lock_guard lock(m_mutex);
    if (stream.running)
        return platform::kAudioNotStopped;
    stream.captured = 0;
    stream.held = false;
    return alive(stream);
}

Result SimulatedEndpoint::nextPacketSize(Stream &stream, std::uint32_t &frames)
{
    const std::lock_guard lock(m_mutex);
    const Result result = alive(stream);
    frames = 0;
    if (result != platform::kAudioOk)
        return result;
    capture(stream);
    if (stream.captured >= packetFrames(stream))
        frames = static_cast<std::uint32_t>(packetFrames(stream));
    return platform::kAudioOk;
}

Result SimulatedEndpoint::getBuffer(Stream &stream, platform::AudioPacket &packet)
{
    const std::lock_guard lock(m_mutex);
    packet = {};
    const Result result = alive(stream);
    if (result != platform::kAudioOk)
        return result;
    if (stream.held)
        return platform::kAudioOutOfOrder;
    capture(stream);
    const int frames = packetFrames(stream);
    if (stream.captured < frames)
        return platform::kAudioBufferEmpty;
    const int channels = stream.format.channels;
    const int rate = static_cast<int>(stream.format.sampleRate);
    stream.samples.resize(static_cast<std::size_t>(frames) * static_cast<std::size_t>(channels));
    std::size_t place = 0;
    for (int frame = 0; frame < frames; ++frame) {
        for (int channel = 0; channel < channels; ++channel) {
            const double value = m_setup.sound.sample(stream.next + frame, channel, rate);
            stream.samples[place++] = static_cast<std::int16_t>(std::lround(value * kFullScale));
        }
    }
    stream.held = true;
    packet = {reinterpret_cast<const std::byte *>(stream.samples.data()), static_cast<std::uint32_t>(frames),
              m_setup.sound.sound == Sound::Silence ? platform::kBufferSilent : 0};
    return platform::kAudioOk;
}

Result SimulatedEndpoint::releaseBuffer(Stream &stream, std::uint32_t frames)
{
    const std::lock_guard lock(m_mutex);
    const Result result = alive(stream);
    if (result != platform::kAudioOk)
        return result;
    if (frames == 0) { // the packet is handed out again
        stream.held = false;
        return platform::kAudioOk;
    }
    if (!stream.held)
        return platform::kAudioOutOfOrder;
    if (frames != static_cast<std::uint32_t>(packetFrames(stream)))
        return platform::kAudioInvalidSize;
    stream.held = false;
    stream.captured -= frames;
    stream.next += frames;
    return platform::kAudioOk;
}

} // namespace virtualdesk
