#pragma once

#include "platform/audiocapture.h"

namespace platform {

/// Core Audio's capture interfaces and avrt's scheduler.
class Win32Audio final : public AudioCapture
{
public:
    std::unique_ptr<AudioScope> initialiseThread() override;
    AudioResult createEnumerator(std::unique_ptr<AudioEnumerator> &enumerator) override;
    std::unique_ptr<AudioScope> createEvent() override;
    std::unique_ptr<AudioScope> registerTask(const char16_t *task) override;
};

} // namespace platform
