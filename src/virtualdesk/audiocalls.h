#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "platform/audiocapture.h"
#include "virtualdesk/faults.h"

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

/// A result that a call gives instead of being done.
struct AudioFault
{
    AudioCall call = AudioCall::GetBuffer;
    platform::AudioResult result = platform::kAudioFailed;
    int times = 1; ///< or kForEver
};

/// The calls to a simulated sound system: counted, and failing on demand. Safe from any thread.
class AudioCalls
{
public:
    void fail(const AudioFault &fault);

    /// Calls since the last resetCounts, failed ones too.
    int count(AudioCall call) const;
    void resetCounts();

    /// Called on the calling thread before a call is done, with its number since the last resetCounts. Set while nobody
    /// calls.
    void setProbe(std::function<void(AudioCall call, int number)> probe) { m_probe = std::move(probe); }

    /// Counts a call; its armed fault, which is used up by one, if there is one.
    std::optional<platform::AudioResult> enter(AudioCall call);

private:
    std::function<void(AudioCall, int)> m_probe;
    mutable std::mutex m_mutex; // guards what follows
    std::array<int, kAudioCalls> m_counts{};
    std::vector<AudioFault> m_faults;
};

} // namespace virtualdesk
