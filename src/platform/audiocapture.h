#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/nativemessage.h"

// The sound system in the terms of Core Audio: each function is one call of it and returns its result code.

namespace platform {

/// A result code (HRESULT). The highest bit marks a failure.
using AudioResult = std::uint32_t;

inline constexpr AudioResult kAudioOk = 0;
inline constexpr AudioResult kAudioFalse = 1;                       ///< S_FALSE: not this, but something like it
inline constexpr AudioResult kAudioBufferEmpty = 0x08890001;        ///< AUDCLNT_S_BUFFER_EMPTY
inline constexpr AudioResult kAudioNotInitialised = 0x88890001;     ///< AUDCLNT_E_NOT_INITIALIZED
inline constexpr AudioResult kAudioAlreadyInitialised = 0x88890002; ///< AUDCLNT_E_ALREADY_INITIALIZED
inline constexpr AudioResult kAudioDeviceInvalidated = 0x88890004;  ///< AUDCLNT_E_DEVICE_INVALIDATED
inline constexpr AudioResult kAudioNotStopped = 0x88890005;         ///< AUDCLNT_E_NOT_STOPPED
inline constexpr AudioResult kAudioOutOfOrder = 0x88890007;         ///< AUDCLNT_E_OUT_OF_ORDER
inline constexpr AudioResult kAudioUnsupportedFormat = 0x88890008;  ///< AUDCLNT_E_UNSUPPORTED_FORMAT
inline constexpr AudioResult kAudioInvalidSize = 0x88890009;        ///< AUDCLNT_E_INVALID_SIZE
inline constexpr AudioResult kAudioServiceNotRunning = 0x88890010;  ///< AUDCLNT_E_SERVICE_NOT_RUNNING
inline constexpr AudioResult kAudioBufferError = 0x88890018;        ///< AUDCLNT_E_BUFFER_ERROR
inline constexpr AudioResult kAudioNotFound = 0x80070490;           ///< there is no such endpoint
inline constexpr AudioResult kAudioInvalidArgument = 0x80070057;    ///< E_INVALIDARG
inline constexpr AudioResult kAudioFailed = 0x80004005;             ///< E_FAIL

constexpr bool audioFailed(AudioResult result)
{
    return (result & 0x80000000) != 0;
}

inline constexpr std::uint16_t kFormatPcm = 1;
inline constexpr std::uint16_t kFormatFloat = 3;
inline constexpr std::uint16_t kFormatExtensible = 0xFFFE;
inline constexpr Guid kSubFormatPcm = {1, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71}};
inline constexpr Guid kSubFormatFloat = {3, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71}};

inline constexpr std::uint32_t kStreamLoopback = 0x20000; ///< AUDCLNT_STREAMFLAGS_LOOPBACK
inline constexpr std::uint32_t kBufferSilent = 2;         ///< AUDCLNT_BUFFERFLAGS_SILENT

/// A sample format, laid out as WAVEFORMATEXTENSIBLE; the last three fields count only with the extensible tag.
struct AudioFormat
{
    std::uint16_t tag = 0;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0; ///< Hz
    std::uint32_t bytesPerSecond = 0;
    std::uint16_t blockAlign = 0; ///< bytes of a sample of all channels
    std::uint16_t bitsPerSample = 0;
    std::uint16_t extraSize = 0; ///< bytes that follow: 22 with the extensible tag
    std::uint16_t validBits = 0;
    std::uint32_t channelMask = 0;
    Guid subFormat;
    bool operator==(const AudioFormat &) const = default;
};
static_assert(sizeof(AudioFormat) == 40);

/// A packet as the capture client hands it out; its data belong to the client and last until it is released.
struct AudioPacket
{
    const std::byte *data = nullptr;
    std::uint32_t frames = 0; ///< samples of all channels
    std::uint32_t flags = 0;  ///< kBuffer...
};

/// Reads what an audio client captured.
class AudioCaptureClient
{
public:
    virtual ~AudioCaptureClient() = default;

    /// GetNextPacketSize, in frames; 0 when there is none.
    virtual AudioResult nextPacketSize(std::uint32_t &frames) = 0;
    /// GetBuffer; kAudioOutOfOrder while the buffer before is not released.
    virtual AudioResult getBuffer(AudioPacket &packet) = 0;
    /// ReleaseBuffer: the packet's frames, all of them; or 0, and the same packet is handed out again.
    virtual AudioResult releaseBuffer(std::uint32_t frames) = 0;
};

/// A stream from or to an endpoint, in shared mode.
class AudioClient
{
public:
    virtual ~AudioClient() = default;

    /// GetDevicePeriod: the default period in units of 100 ns.
    virtual AudioResult devicePeriod(std::int64_t &period) = 0;
    /// GetMixFormat: that of the engine, as much of it as AudioFormat has room for.
    virtual AudioResult mixFormat(AudioFormat &format) = 0;
    /// IsFormatSupported: kAudioOk, or kAudioFalse when only something like it is.
    virtual AudioResult isFormatSupported(const AudioFormat &format) = 0;
    /// Initialize with kStream... flags; the buffer's duration in units of 100 ns, and periodicity 0.
    virtual AudioResult initialize(std::uint32_t flags, std::int64_t duration, const AudioFormat &format) = 0;
    /// kAudioNotStopped when it runs already.
    virtual AudioResult start() = 0;
    /// What was captured waits on.
    virtual AudioResult stop() = 0;
    /// Forgets what was captured; kAudioNotStopped while it runs.
    virtual AudioResult reset() = 0;
    /// GetService for the capture client.
    virtual AudioResult captureClient(std::unique_ptr<AudioCaptureClient> &client) = 0;
};

/// A device that plays or records.
class AudioEndpoint
{
public:
    virtual ~AudioEndpoint() = default;
    /// Activate of an audio client, with all contexts.
    virtual AudioResult activate(std::unique_ptr<AudioClient> &client) = 0;
};

class AudioEnumerator
{
public:
    virtual ~AudioEnumerator() = default;
    /// GetDefaultAudioEndpoint for rendering, in the console role.
    virtual AudioResult defaultRenderEndpoint(std::unique_ptr<AudioEndpoint> &endpoint) = 0;
};

/// Something that lasts as long as the object: COM in a thread, an event, a thread's task in the scheduler.
class AudioScope
{
public:
    virtual ~AudioScope() = default;
};

/// The sound system. All objects are used and destroyed on the thread that got them.
class AudioCapture
{
public:
    virtual ~AudioCapture() = default;

    /// Initialises COM for the calling thread; null where another way of it is set up already.
    virtual std::unique_ptr<AudioScope> initialiseThread() = 0;
    /// CoCreateInstance of the device enumerator, with all contexts.
    virtual AudioResult createEnumerator(std::unique_ptr<AudioEnumerator> &enumerator) = 0;
    /// An unnamed manual-reset event that is not signalled; null when there is none to be had.
    virtual std::unique_ptr<AudioScope> createEvent() = 0;
    /// Registers the calling thread with the multimedia scheduler until the result goes; null when it is refused.
    virtual std::unique_ptr<AudioScope> registerTask(const char16_t *task) = 0;
};

} // namespace platform
