#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <set>
#include <span>
#include <vector>

#include <QByteArray>
#include <QDateTime>

#include "platform/clock.h"
#include "virtualdesk/accessorydecoder.h"
#include "virtualdesk/faults.h"
#include "virtualdesk/listeners.h"

namespace virtualdesk {

/// One write that reached for the accessory.
struct AccessoryWrite
{
    enum class Outcome { Ok, Refused, Unplugged, Fault };

    QDateTime time;
    QByteArray bytes;
    Outcome outcome = Outcome::Ok;
    const char *fault = nullptr; ///< what is wrong with the report, when it was taken but is unsound
};

/// The LED-matrix accessory as USB sees it. It checks every report as the device does and shows what came of them. Safe
/// from any thread.
class SimulatedAccessory
{
public:
    using Listener = Listeners<>::Listener;

    static constexpr std::size_t kHistorySize = 4096; ///< more than the longest animation has chunks
    static constexpr std::uint16_t kVendor = 0x0416;
    static constexpr std::uint16_t kProduct = 0x3F00;

    /// The clock outlives the accessory; it times the writes.
    explicit SimulatedAccessory(platform::Clock &clock) : m_clock(clock) {}

    // The wire.

    /// A handle, which is valid until it is closed; null when the device is away or fails to open.
    void *open();
    /// The bytes taken, or -1. A handle from before the device was pulled out fails, even when it is back.
    int write(void *handle, std::span<const std::uint8_t> report);
    void close(void *handle);

    // What happens to it.

    void setPlugged(bool plugged);
    bool isPlugged() const;
    /// Turns it into the other model, which has its own cells.
    void setForm(int form);
    int form() const;
    /// The next writes fail, or, by kForEver, all until 0.
    void refuseWrites(int times);
    bool refusesWrites() const;
    /// The next attempts to open it fail, or, by kForEver, all until 0.
    void failOpens(int times);
    /// Somebody pulls it out at the n-th write from now, which fails; 0 takes that back.
    void unplugAtWrite(int n);
    bool unplugsAtWrite() const;

    // What came of it.

    AccessoryState state() const;
    /// Reports that the device could not make sense of.
    int protocolFaults() const;
    /// What was wrong with the last of them; null before the first.
    const char *lastFault() const;
    /// Uses of handles that were closed or never given.
    int handleFaults() const;
    int handlesOpen() const;
    /// The last writes, oldest first, at most kHistorySize.
    std::vector<AccessoryWrite> history() const;
    void clearHistory();

    /// Called after every change, on the thread that made it, with nothing locked that a question needs.
    int addListener(Listener listener) { return m_listeners.add(std::move(listener)); }
    /// When this returns no call is under way in another thread and none comes any more.
    void removeListener(int id) { m_listeners.remove(id); }

    /// Called, as a listener, when the device was plugged in or pulled out. One only: the desk's.
    void onPlugged(std::function<void(bool plugged)> told) { m_plugTold = std::move(told); }

private:
    struct Handle
    {
        std::uintptr_t token;
        int plugging; ///< which plugging-in it belongs to
        auto operator<=>(const Handle &) const = default;
    };

    int serve(void *handle, AccessoryWrite &write);

    platform::Clock &m_clock;
    std::function<void(bool)> m_plugTold;

    mutable std::mutex m_mutex; // guards everything down to the listeners
    AccessoryDecoder m_decoder;
    std::set<Handle> m_handles;
    std::uintptr_t m_nextToken = 0x61000;
    int m_plugging = 1;
    bool m_plugged = true;
    int m_refusals = 0;
    int m_openFailures = 0;
    int m_writesToUnplug = 0;
    int m_protocolFaults = 0;
    const char *m_lastFault = nullptr;
    int m_handleFaults = 0;
    std::deque<AccessoryWrite> m_history;

    Listeners<> m_listeners; // one may do something to the accessory
};

} // namespace virtualdesk
