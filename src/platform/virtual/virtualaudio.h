#pragma once

#include "platform/audiocapture.h"

namespace virtualdesk {
class SimulatedEndpoint;
}

namespace platform {

/// The sound system's calls answered by a simulated endpoint, which outlives every object got from here.
class VirtualAudio final : public AudioCapture
{
public:
    explicit VirtualAudio(virtualdesk::SimulatedEndpoint &endpoint) : m_endpoint(endpoint) {}

    std::unique_ptr<AudioScope> initialiseThread() override;
    AudioResult createEnumerator(std::unique_ptr<AudioEnumerator> &enumerator) override;
    std::unique_ptr<AudioScope> createEvent() override;
    std::unique_ptr<AudioScope> registerTask(const char16_t *task) override;

private:
    virtualdesk::SimulatedEndpoint &m_endpoint;
};

} // namespace platform
