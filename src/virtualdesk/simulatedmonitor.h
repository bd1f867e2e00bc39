#pragma once

#include <atomic>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

#include <QByteArray>

#include "platform/clock.h"
#include "virtualdesk/conversation.h"
#include "virtualdesk/faults.h"
#include "virtualdesk/listeners.h"
#include "virtualdesk/monitormemory.h"
#include "virtualdesk/replay.h"
#include "virtualdesk/request.h"

namespace virtualdesk {

/// A monitor as the wire sees it: a memory and a conversation, reached through the faults that lie in wait. Safe from
/// any thread.
class SimulatedMonitor
{
public:
    using Listener = Listeners<const Request &>::Listener;

    static constexpr std::size_t kHistorySize = 2048;

    /// Both outlive the monitor. The clock times requests and spends the latency.
    SimulatedMonitor(const MonitorModel &model, platform::Clock &clock);

    const MonitorModel &model() const { return m_model; }

    // The wire.

    /// A VCP read; fails with an error number and zeroes when the monitor does not answer.
    Reply read(std::uint8_t code);

    /// A VCP write. An accepted write tells nothing about the value, as on the real wire.
    Reply write(std::uint8_t code, std::uint32_t value);

    // The monitor's own state, as its buttons and its menu would reach it; nothing here is a request.

    std::uint16_t value(std::uint8_t code) const;
    std::uint16_t maximum(std::uint8_t code) const;
    /// Sets a value unchecked; scene mode and picture values have the effect that they have on the wire.
    void setValue(std::uint8_t code, std::uint16_t value);
    /// The 40 bytes of a mode, 1..90: an even mode's are the user's own.
    QByteArray block(int mode) const;
    /// Replaces the block of an even mode; shorter data changes only the first bytes.
    void setBlock(int mode, const QByteArray &bytes);

    // Faults. Counts are requests, or kForEver.

    /// Arms a fault of the wire for the next requests; where it may be for one code, a code narrows it to that.
    void arm(const MonitorFault &fault, int times, int code = kAnyCommand);
    void arm(const char *word, int times, int code = kAnyCommand) { arm(*findFault(QLatin1String(word)), times, code); }
    /// Whether a fault waits for a request, or lasts.
    bool isOn(const MonitorFault &fault) const;
    /// Ends every fault.
    void recover();

    // Those that are asked for most.

    void refuse(std::uint8_t code, int times = 1) { arm("refuse", times, code); }
    void refuseWrites(int times = 1) { arm("refuse_writes", times); }
    void loseReplies(int times = 1, int code = kAnyCommand) { arm("lose_replies", times, code); }
    void garbleReplies(int times = 1, int code = kAnyCommand) { arm("garble", times, code); }
    void dropChunks(int times = 1) { arm("drop_chunks", times); }
    void goDeaf(int requests = kForEver) { arm("deaf", requests); }

    /// Asleep it answers nothing; what its buttons change is changed all the same.
    void setAsleep(bool asleep) { m_asleep = asleep; }
    bool isAsleep() const { return m_asleep; }

    /// Pulled out, it forgets what it was in the middle of being told.
    void setPlugged(bool plugged);
    bool isPlugged() const
    {
        const std::lock_guard lock(m_mutex);
        return m_plugged;
    }

    /// Answers from a recording from now on, whatever its own state and faults are.
    void replay(Replay recording)
    {
        const std::lock_guard lock(m_mutex);
        m_replay = std::move(recording);
    }
    /// The recording as far as it has been replayed; nothing without one.
    std::optional<Replay> replayed() const
    {
        const std::lock_guard lock(m_mutex);
        return m_replay;
    }

    /// What each request costs.
    void setLatency(platform::milliseconds read, platform::milliseconds write)
    {
        m_readLatency = read.count();
        m_writeLatency = write.count();
    }
    platform::milliseconds readLatency() const { return platform::milliseconds(m_readLatency); }
    /// What each request costs on top of that: a monitor that is busy with something else.
    void setDelay(platform::milliseconds delay) { m_delay = delay.count(); }
    bool isSlow() const { return m_delay > 0; }

    // Watching.

    /// The last requests, oldest first, at most kHistorySize.
    std::vector<Request> history() const;
    void clearHistory()
    {
        const std::lock_guard lock(m_mutex);
        m_history.clear();
    }
    ProtocolFaults protocolFaults() const;

    /// Called after each request, on the thread that made it, with nothing locked that a request or a question needs.
    int addListener(Listener listener) { return m_listeners.add(std::move(listener)); }
    /// When this returns no call is under way in another thread and none comes any more.
    void removeListener(int id) { m_listeners.remove(id); }

private:
    Reply request(RequestKind kind, std::uint8_t code, std::uint32_t value);
    Reply serve(Request &request);

    const MonitorModel &m_model;
    platform::Clock &m_clock;
    std::atomic<int> m_inFlight = 0;
    std::atomic<std::int64_t> m_readLatency = 0;
    std::atomic<std::int64_t> m_writeLatency = 0;
    std::atomic<std::int64_t> m_delay = 0;

    mutable std::mutex m_mutex;     // guards everything down to the listeners
    mutable MonitorMemory m_memory; // which moves on with the time
    Conversation m_conversation;
    bool m_plugged = true;
    std::atomic<bool> m_asleep = false;
    Faults m_faults;
    std::optional<Replay> m_replay;
    std::deque<Request> m_history;

    Listeners<const Request &> m_listeners; // one may pull the plug, which makes the program send requests from within
};

} // namespace virtualdesk
