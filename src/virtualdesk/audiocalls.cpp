#include "virtualdesk/audiocalls.h"

#include <algorithm>

namespace virtualdesk {

void AudioCalls::fail(const AudioFault &fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.push_back(fault);
}

int AudioCalls::count(AudioCall call) const
{
    const std::lock_guard lock(m_mutex);
    return m_counts[static_cast<std::size_t>(call)];
}

void AudioCalls::resetCounts()
{
    const std::lock_guard lock(m_mutex);
    m_counts = {};
}

std::optional<platform::AudioResult> AudioCalls::enter(AudioCall call)
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
    if (fault == m_faults.end())
        return std::nullopt;
    if (fault->times != kForEver)
        --fault->times;
    return fault->result;
}

} // namespace virtualdesk
