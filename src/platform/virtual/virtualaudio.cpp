#include "platform/virtual/virtualaudio.h"

#include <utility>

#include "virtualdesk/simulatedendpoint.h"

namespace platform {

namespace {

using virtualdesk::AudioCall;
using virtualdesk::LoopbackStream;
using virtualdesk::SimulatedEndpoint;

/// Counted by the endpoint as long as it lives.
class Counted final : public AudioScope
{
public:
    explicit Counted(SimulatedEndpoint &endpoint) : m_token(endpoint.token()) {}

private:
    std::shared_ptr<void> m_token;
};

/// Both clients' side of one stream.
struct Shared
{
    explicit Shared(SimulatedEndpoint &device) : endpoint(device), token(device.token()) {}

    /// Counts the call, then has the stream do it unless a fault is armed.
    template <typename Function, typename... Given>
    AudioResult operator()(AudioCall name, Function function, Given &&...given)
    {
        const AudioResult result = endpoint.enter(name);
        return result == kAudioOk ? endpoint.ask(stream, function, std::forward<Given>(given)...) : result;
    }

    SimulatedEndpoint &endpoint;
    LoopbackStream stream;
    std::shared_ptr<void> token;
};

class VirtualCaptureClient final : public AudioCaptureClient
{
public:
    explicit VirtualCaptureClient(std::shared_ptr<Shared> shared) : m_shared(std::move(shared)) {}

    AudioResult nextPacketSize(std::uint32_t &frames) override
    {
        return (*m_shared)(AudioCall::NextPacketSize, &LoopbackStream::nextPacketSize, frames);
    }

    AudioResult getBuffer(AudioPacket &packet) override
    {
        return (*m_shared)(AudioCall::GetBuffer, &LoopbackStream::getBuffer, packet);
    }

    AudioResult releaseBuffer(std::uint32_t frames) override
    {
        return (*m_shared)(AudioCall::ReleaseBuffer, &LoopbackStream::releaseBuffer, frames);
    }

private:
    std::shared_ptr<Shared> m_shared;
};

class VirtualAudioClient final : public AudioClient
{
public:
    explicit VirtualAudioClient(std::shared_ptr<Shared> shared) : m_shared(std::move(shared)) {}

    AudioResult devicePeriod(std::int64_t &period) override
    {
        period = 100'000; // 10 ms
        return m_shared->endpoint.enter(AudioCall::DevicePeriod);
    }

    AudioResult mixFormat(AudioFormat &format) override
    {
        format = m_shared->endpoint.mixFormat();
        return m_shared->endpoint.enter(AudioCall::MixFormat);
    }

    AudioResult isFormatSupported(const AudioFormat &format) override
    {
        const AudioResult result = m_shared->endpoint.enter(AudioCall::IsFormatSupported);
        return result == kAudioOk ? m_shared->endpoint.isFormatSupported(format) : result;
    }

    AudioResult initialize(std::uint32_t flags, std::int64_t duration, const AudioFormat &format) override
    {
        return (*m_shared)(AudioCall::Initialize, &LoopbackStream::initialise, flags, duration, format);
    }

    AudioResult start() override { return (*m_shared)(AudioCall::Start, &LoopbackStream::start); }
    AudioResult stop() override { return (*m_shared)(AudioCall::Stop, &LoopbackStream::stop); }
    AudioResult reset() override { return (*m_shared)(AudioCall::Reset, &LoopbackStream::reset); }

    AudioResult captureClient(std::unique_ptr<AudioCaptureClient> &client) override
    {
        const AudioResult result = m_shared->endpoint.enter(AudioCall::CaptureClient);
        if (result != kAudioOk)
            return result;
        if (!m_shared->stream.isInitialised())
            return kAudioNotInitialised;
        client = std::make_unique<VirtualCaptureClient>(m_shared);
        return kAudioOk;
    }

private:
    std::shared_ptr<Shared> m_shared;
};

class VirtualEndpoint final : public AudioEndpoint
{
public:
    explicit VirtualEndpoint(SimulatedEndpoint &endpoint) : m_endpoint(endpoint) {}

    AudioResult activate(std::unique_ptr<AudioClient> &client) override
    {
        auto shared = std::make_shared<Shared>(m_endpoint);
        AudioResult result = m_endpoint.enter(AudioCall::Activate);
        if (result == kAudioOk)
            result = m_endpoint.ask(shared->stream, &LoopbackStream::open);
        if (result == kAudioOk)
            client = std::make_unique<VirtualAudioClient>(std::move(shared));
        return result;
    }

private:
    SimulatedEndpoint &m_endpoint;
};

class VirtualEnumerator final : public AudioEnumerator
{
public:
    explicit VirtualEnumerator(SimulatedEndpoint &endpoint) : m_endpoint(endpoint) {}

    AudioResult defaultRenderEndpoint(std::unique_ptr<AudioEndpoint> &endpoint) override
    {
        const AudioResult result = m_endpoint.enter(AudioCall::DefaultEndpoint);
        if (result == kAudioOk)
            endpoint = std::make_unique<VirtualEndpoint>(m_endpoint);
        return result;
    }

private:
    SimulatedEndpoint &m_endpoint;
};

} // namespace

std::unique_ptr<AudioScope> VirtualAudio::initialiseThread()
{
    return std::make_unique<Counted>(m_endpoint);
}

AudioResult VirtualAudio::createEnumerator(std::unique_ptr<AudioEnumerator> &enumerator)
{
    const AudioResult result = m_endpoint.enter(AudioCall::CreateEnumerator);
    if (result == kAudioOk)
        enumerator = std::make_unique<VirtualEnumerator>(m_endpoint);
    return result;
}

std::unique_ptr<AudioScope> VirtualAudio::createEvent()
{
    return m_endpoint.enter(AudioCall::CreateEvent) == kAudioOk ? std::make_unique<Counted>(m_endpoint) : nullptr;
}

std::unique_ptr<AudioScope> VirtualAudio::registerTask(const char16_t *)
{
    return m_endpoint.enter(AudioCall::RegisterTask) == kAudioOk ? std::make_unique<Counted>(m_endpoint) : nullptr;
}

} // namespace platform
