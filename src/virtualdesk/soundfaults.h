#pragma once

#include <span>

namespace virtualdesk {

class SimulatedEndpoint;

/// One thing that can go wrong. Without isSet it happens once; else the button is down while it lasts.
struct SoundFault
{
    const char *text; ///< source text, as the tip
    const char *tip;
    void (*set)(SimulatedEndpoint &endpoint, bool on);
    bool (*isSet)(const SimulatedEndpoint &endpoint);
};

/// Everything that can go wrong with the sound, a row each.
std::span<const SoundFault> soundFaults();

} // namespace virtualdesk
