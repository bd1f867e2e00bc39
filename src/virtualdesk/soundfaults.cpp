#include "virtualdesk/soundfaults.h"

#include "virtualdesk/marked.h"
#include "virtualdesk/simulatedendpoint.h"

namespace virtualdesk {

namespace {

constexpr SoundFault kSoundFaults[] = {
    {NAME("Pull out"), NAME("There is no sound output until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) { endpoint.setPresent(!on); },
     [](const SimulatedEndpoint &endpoint) { return !endpoint.setup().present; }},
    {NAME("Stop service"), NAME("The system's audio service is down until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) { endpoint.setServiceRunning(!on); },
     [](const SimulatedEndpoint &endpoint) { return !endpoint.serviceRunning(); }},
    {NAME("Huge packets"), NAME("Every packet holds 7001 frames until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) {
         endpoint.change([on](EndpointSetup &setup) { setup.packetFrames = on ? 7001 : 0; });
     },
     [](const SimulatedEndpoint &endpoint) { return endpoint.setup().packetFrames != 0; }},
    {NAME("New device"), NAME("Another device becomes the default one"),
     [](SimulatedEndpoint &endpoint, bool) { endpoint.moveDefault(); }, nullptr},
    {NAME("Buffer error"), NAME("The next packet cannot be fetched"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::GetBuffer, platform::kAudioBufferError, 1});
     },
     nullptr},
    {NAME("Out of order"), NAME("The next packet is refused, as if the one before were still held"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::GetBuffer, platform::kAudioOutOfOrder, 1});
     },
     nullptr},
    {NAME("Refuse format"), NAME("The next client is not initialised"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::Initialize, platform::kAudioUnsupportedFormat, 1});
         endpoint.change([](EndpointSetup &) {}); // so that there is a next one
     },
     nullptr},
};

} // namespace

std::span<const SoundFault> soundFaults()
{
    return kSoundFaults;
}

} // namespace virtualdesk
