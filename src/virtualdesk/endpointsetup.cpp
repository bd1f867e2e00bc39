#include "virtualdesk/endpointsetup.h"

namespace virtualdesk {

namespace {

constexpr std::uint16_t kExtraSize = 22;

bool isExtensible(MixKind mix)
{
    return mix == MixKind::ExtensibleFloat || mix == MixKind::ExtensibleInteger;
}

bool isFloat(MixKind mix)
{
    return mix == MixKind::ExtensibleFloat || mix == MixKind::Float;
}

bool isConsistent(const platform::AudioFormat &format)
{
    return format.blockAlign == format.channels * format.bitsPerSample / 8 &&
           format.bytesPerSecond == format.blockAlign * format.sampleRate;
}

} // namespace

platform::AudioFormat mixFormatOf(const EndpointSetup &setup)
{
    const bool extensible = isExtensible(setup.mix);
    const bool floating = isFloat(setup.mix);
    platform::AudioFormat format;
    format.tag = extensible ? platform::kFormatExtensible : floating ? platform::kFormatFloat : platform::kFormatPcm;
    format.channels = static_cast<std::uint16_t>(setup.channels);
    format.sampleRate = static_cast<std::uint32_t>(setup.sampleRate);
    format.bitsPerSample = floating ? 32 : 16;
    format.blockAlign = static_cast<std::uint16_t>(format.channels * format.bitsPerSample / 8);
    format.bytesPerSecond = format.blockAlign * format.sampleRate;
    if (extensible) {
        format.extraSize = kExtraSize;
        format.validBits = format.bitsPerSample;
        format.channelMask = (1u << setup.channels) - 1;
        format.subFormat = floating ? platform::kSubFormatFloat : platform::kSubFormatPcm;
    }
    return format;
}

platform::AudioResult supportOf(const EndpointSetup &setup, const platform::AudioFormat &format)
{
    if (!isConsistent(format))
        return platform::kAudioInvalidArgument;
    const bool rate = setup.convertsRates || format.sampleRate == static_cast<std::uint32_t>(setup.sampleRate);
    return rate && format.channels == setup.channels ? platform::kAudioOk : platform::kAudioFalse;
}

} // namespace virtualdesk
