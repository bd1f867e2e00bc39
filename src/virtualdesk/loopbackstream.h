#pragma once

#include <cstdint>
#include <vector>

#include <QDateTime>

#include "platform/clock.h"
#include "virtualdesk/endpointsetup.h"

namespace virtualdesk {

/// What the streams of an endpoint know of it.
struct SoundEngine
{
    platform::Clock &clock;
    QDateTime begin; ///< of what plays
    EndpointSetup setup;
    std::uint64_t generation = 1; ///< streams of an older one are dead
    std::uint64_t device = 1;     ///< the default one
    QDateTime movedAt = {};       ///< from the device before to this one
};

/// A client's side of a simulated endpoint, from which it takes what is played, packet by packet. Not thread-safe: the
/// endpoint guards it.
class LoopbackStream
{
public:
    using Result = platform::AudioResult;

    bool isInitialised() const { return m_initialised; }

    Result open(const SoundEngine &engine);
    Result initialise(const SoundEngine &engine, std::uint32_t flags, std::int64_t duration,
                      const platform::AudioFormat &format);
    Result start(const SoundEngine &engine);
    Result stop(const SoundEngine &engine);
    Result reset(const SoundEngine &engine);
    Result nextPacketSize(const SoundEngine &engine, std::uint32_t &frames);
    Result getBuffer(const SoundEngine &engine, platform::AudioPacket &packet);
    Result releaseBuffer(const SoundEngine &engine, std::uint32_t frames);

private:
    Result alive(const SoundEngine &engine) const;
    std::int64_t nowFrame(const SoundEngine &engine) const;
    std::int64_t heardFrame(const SoundEngine &engine) const;
    int packetFrames(const SoundEngine &engine) const;
    void capture(const SoundEngine &engine);

    platform::AudioFormat m_format;
    std::uint64_t m_generation = 0;
    std::uint64_t m_device = 0;
    bool m_initialised = false;
    bool m_running = false;
    bool m_held = false; // a buffer was handed out
    std::int64_t m_bufferFrames = 0;
    std::int64_t m_next = 0;     // place of the next frame to be captured
    std::int64_t m_captured = 0; // frames that wait
    std::vector<std::int16_t> m_samples;
};

} // namespace virtualdesk
