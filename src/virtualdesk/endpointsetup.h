#pragma once

#include "platform/audiocapture.h"
#include "virtualdesk/soundsource.h"

namespace virtualdesk {

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

/// The format that the engine of such an endpoint mixes in.
platform::AudioFormat mixFormatOf(const EndpointSetup &setup);

/// Whether a client may ask such an endpoint for a format: kAudioOk, kAudioFalse for another one, or
/// kAudioInvalidArgument for one that contradicts itself.
platform::AudioResult supportOf(const EndpointSetup &setup, const platform::AudioFormat &format);

} // namespace virtualdesk
