#pragma once

#include <array>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/audiocapture.h"
#include "platform/clock.h"
#include "virtualdesk/faults.h"
#include "virtualdesk/soundsource.h"

namespace virtualdesk {

/// The calls that can be made to fail, and that are counted.
enum class AudioCall {
    CreateEnumerator,
    DefaultEndpoint,
    CreateEvent,
    Activate,
    DevicePeriod,
    MixFormat,
    IsFormatSupported,
    Initialize,
    CaptureClient,
    RegisterTask,
    Start,
    Stop,
    Reset,
    NextPacketSize,
    GetBuffer,
    ReleaseBuffer,
    Last = ReleaseBuffer
};
inline constexpr std::size_t kAudioCalls = static_cast<std::size_t>(AudioCall::Last) + 1;

/// How the engine mixes; what a client is offered follows from it.
enum class MixKind { ExtensibleFloat, Float, ExtensibleInteger, Integer };

struct EndpointSetup
{
    bool present = true;
    MixKind mix = MixKind::ExtensibleFloat;
    int sampleRate = 48000; ///< Hz
    int channels = 2;
    bool convertsRates = false; ///< whether other rates than its own are supported
    int packetFrames = 0;       ///< 0: as many as 10 ms have
    SoundSetup sound;
};

/// A result that a call gives instead of being done.
struct AudioFault
{
    AudioCall call = AudioCall::GetBuffer;
    platform::AudioResult result = platform::kAudioFailed;
    int times = 1; ///< or kForEver
};

/// The sound system of a simulated desk, with one endpoint that plays. It behaves like the system's in what a client
/// can see: packets every 10 ms while something plays and the client runs, results for calls out of order, and dead
/// clients after the device went or changed. Safe from any thread.
class SimulatedEndpoint
{
public:
    using Result = platform::AudioResult;

    /// The clock outlives it.
    explicit SimulatedEndpoint(platform::Clock &clock, const EndpointSetup &setup = {});

    EndpointSetup setup() const;
    void play(const SoundSetup &sound);
    /// Another rate, channel count, mix or packet size: the clients of before are dead.
    void change(const std::function<void(EndpointSetup &)> &edit);
    /// Another device becomes the default one and what plays goes there: the clients of the one before stay alive, and
    /// hear nothing more.
    void moveDefault(const std::function<void(EndpointSetup &)> &edit = {});
    /// Plugs the device in or pulls it out.
    void setPresent(bool present);
    void setServiceRunning(bool running);
    bool serviceRunning() const;

    void fail(const AudioFault &fault);

    /// Calls since the last resetCounts, failed ones too.
    int count(AudioCall call) const;
    void resetCounts();
    /// Clients, events, tasks and threads with COM that exist now.
    int objects() const;

    /// Called on the thread that changed something, after it. Once this returns the listener of before is not called
    /// any more.
    void setListener(std::function<void()> changed);
    /// Called on the calling thread before a call is done, with its number since the last resetCounts. Set while nobody
    /// calls.
    void setProbe(std::function<void(AudioCall call, int number)> probe) { m_probe = std::move(probe); }

    // What the platform's objects ask. A stream is a client's side of it.

    struct Stream
    {
        platform::AudioFormat format;
        std::uint64_t generation = 0;
        std::uint64_t device = 0;
        bool initialised = false;
        bool running = false;
        bool held = false; // a buffer was handed out
        std::int64_t bufferFrames = 0;
        std::int64_t next = 0;     // place of the next frame to be captured
        std::int64_t captured = 0; // frames that wait
        std::vector<std::int16_t> samples;
    };

    /// Counts a call; its armed fault, or success.
    Result enter(AudioCall call);
    Result open(Stream &stream);
    platform::AudioFormat mixFormat() const;
    Result isFormatSupported(const platform::AudioFormat &format) const;
    Result initialise(Stream &stream, std::uint32_t flags, std::int64_t duration, const platform::AudioFormat &format);
    Result start(Stream &stream);
    Result stop(Stream &stream);
    Result reset(Stream &stream);
    Result nextPacketSize(Stream &stream, std::uint32_t &frames);
    Result getBuffer(Stream &stream, platform::AudioPacket &packet);
    Result releaseBuffer(Stream &stream, std::uint32_t frames);
    /// Held by whatever is to be counted in objects.
    std::shared_ptr<void> token();

private:
    Result alive(const Stream &stream) const;
    std::int64_t nowFrame(const Stream &stream) const;
    std::int64_t heardFrame(const Stream &stream) const;
    int packetFrames(const Stream &stream) const;
    void capture(Stream &stream);
    void announce();

    platform::Clock &m_clock;
    const QDateTime m_begin;
    mutable std::mutex m_mutex; // guards what follows
    EndpointSetup m_setup;
    bool m_serviceRunning = true;
    std::uint64_t m_generation = 1;
    std::uint64_t m_device = 1; // the default one
    QDateTime m_movedAt;        // from the one before to it
    std::array<int, kAudioCalls> m_counts{};
    std::vector<AudioFault> m_faults;
    std::function<void(AudioCall, int)> m_probe; // not guarded: set before
    std::shared_ptr<int> m_tokens = std::make_shared<int>();
    std::mutex m_listenerMutex; // held while the listener is called
    std::function<void()> m_listener;
};

} // namespace virtualdesk
