#include "virtualdesk/simulatedendpoint.h"

namespace virtualdesk {

using platform::AudioFormat;
using Result = platform::AudioResult;

SimulatedEndpoint::SimulatedEndpoint(platform::Clock &clock, const EndpointSetup &setup)
    : m_engine{clock, clock.now(), setup}
{
}

EndpointSetup SimulatedEndpoint::setup() const
{
    const std::lock_guard lock(m_mutex);
    return m_engine.setup;
}

void SimulatedEndpoint::play(const SoundSetup &sound)
{
    {
        const std::lock_guard lock(m_mutex);
        m_engine.setup.sound = sound;
    }
    announce();
}

void SimulatedEndpoint::change(const std::function<void(EndpointSetup &)> &edit)
{
    {
        const std::lock_guard lock(m_mutex);
        edit(m_engine.setup);
        ++m_engine.generation;
    }
    announce();
}

void SimulatedEndpoint::moveDefault(const std::function<void(EndpointSetup &)> &edit)
{
    {
        const std::lock_guard lock(m_mutex);
        if (edit)
            edit(m_engine.setup);
        ++m_engine.device;
        m_engine.movedAt = m_engine.clock.now();
    }
    announce();
}

void SimulatedEndpoint::setPresent(bool present)
{
    change([present](EndpointSetup &setup) { setup.present = present; });
}

void SimulatedEndpoint::setServiceRunning(bool running)
{
    {
        const std::lock_guard lock(m_mutex);
        m_serviceRunning = running;
        ++m_engine.generation; // a service that comes back does not know the clients of before
    }
    announce();
}

bool SimulatedEndpoint::serviceRunning() const
{
    const std::lock_guard lock(m_mutex);
    return m_serviceRunning;
}

int SimulatedEndpoint::objects() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_tokens.use_count()) - 1;
}

void SimulatedEndpoint::setListener(std::function<void()> changed)
{
    const std::lock_guard lock(m_listenerMutex);
    m_listener = std::move(changed);
}

void SimulatedEndpoint::announce()
{
    const std::lock_guard lock(m_listenerMutex);
    if (m_listener)
        m_listener();
}

std::shared_ptr<void> SimulatedEndpoint::token()
{
    const std::lock_guard lock(m_mutex);
    return m_tokens;
}

Result SimulatedEndpoint::enter(AudioCall call)
{
    if (const std::optional<Result> fault = m_calls.enter(call))
        return *fault;
    const std::lock_guard lock(m_mutex);
    if (!m_serviceRunning && call >= AudioCall::Activate && call != AudioCall::RegisterTask)
        return platform::kAudioServiceNotRunning;
    return call == AudioCall::DefaultEndpoint && !m_engine.setup.present ? platform::kAudioNotFound
                                                                         : platform::kAudioOk;
}

AudioFormat SimulatedEndpoint::mixFormat() const
{
    const std::lock_guard lock(m_mutex);
    return mixFormatOf(m_engine.setup);
}

Result SimulatedEndpoint::isFormatSupported(const AudioFormat &format) const
{
    const std::lock_guard lock(m_mutex);
    return supportOf(m_engine.setup, format);
}

} // namespace virtualdesk
