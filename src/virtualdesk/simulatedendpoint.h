#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include "virtualdesk/audiocalls.h"
#include "virtualdesk/loopbackstream.h"

namespace virtualdesk {

/// The sound system of a simulated desk, with one endpoint that plays. It behaves like the system's in what a client
/// can see: packets every 10 ms while something plays and the client runs, results for calls out of order, and dead
/// clients after the device went or changed. Safe from any thread.
class SimulatedEndpoint
{
public:
    using Result = platform::AudioResult;

    /// The clock outlives it.
    explicit SimulatedEndpoint(platform::Clock &clock, const EndpointSetup &setup = {});

    EndpointSetup setup() const;
    void play(const SoundSetup &sound);
    /// Another rate, channel count, mix or packet size: the clients of before are dead.
    void change(const std::function<void(EndpointSetup &)> &edit);
    /// Another device becomes the default one and what plays goes there: the clients of the one before stay alive, and
    /// hear nothing more.
    void moveDefault(const std::function<void(EndpointSetup &)> &edit = {});
    /// Plugs the device in or pulls it out.
    void setPresent(bool present);
    void setServiceRunning(bool running);
    bool serviceRunning() const;

    void fail(const AudioFault &fault) { m_calls.fail(fault); }

    /// Calls since the last resetCounts, failed ones too.
    int count(AudioCall call) const { return m_calls.count(call); }
    void resetCounts() { m_calls.resetCounts(); }
    /// Clients, events, tasks and threads with COM that exist now.
    int objects() const;

    /// Called on the thread that changed something, after it. Once this returns the listener of before is not called
    /// any more.
    void setListener(std::function<void()> changed);
    /// Called on the calling thread before a call is done, with its number since the last resetCounts. Set while nobody
    /// calls.
    void setProbe(std::function<void(AudioCall call, int number)> probe) { m_calls.setProbe(std::move(probe)); }

    // What the platform's objects ask.

    /// Counts a call; its armed fault, or success.
    Result enter(AudioCall call);
    platform::AudioFormat mixFormat() const;
    Result isFormatSupported(const platform::AudioFormat &format) const;
    /// Has a stream do one of its functions.
    template <typename... Wanted, typename... Given>
    Result ask(LoopbackStream &stream, Result (LoopbackStream::*function)(const SoundEngine &, Wanted...),
               Given &&...given)
    {
        const std::lock_guard lock(m_mutex);
        return (stream.*function)(m_engine, std::forward<Given>(given)...);
    }
    /// Held by whatever is to be counted in objects.
    std::shared_ptr<void> token();

private:
    void announce();

    AudioCalls m_calls;
    mutable std::mutex m_mutex; // guards what follows
    SoundEngine m_engine;
    bool m_serviceRunning = true;
    std::shared_ptr<int> m_tokens = std::make_shared<int>();
    std::mutex m_listenerMutex; // held while the listener is called
    std::function<void()> m_listener;
};

} // namespace virtualdesk
