#pragma once

#include <chrono>
#include <span>
#include <variant>
#include <vector>

#include <QString>

#include "virtualdesk/request.h"

namespace virtualdesk {

/// How often a fault strikes: a positive count, 0 for never, or kForEver.
inline constexpr int kForEver = -1;

/// Matches any request but those on the vendor code 0x99, whose answers carry nothing.
inline constexpr int kAnyCommand = -1;

class SimulatedMonitor;
class VirtualDesk;
struct MonitorEvent;

/// What makes a request fail.
struct WireFault
{
    enum class Moment {
        Hearing,  ///< it is not even heard, and the conversation is forgotten
        Taking,   ///< it is heard, but not done
        Answering ///< it is done, and a read's answer is not what it should be
    };

    Moment moment;
    /// Which requests it strikes unless it was armed for one code; inStream for the next four bytes of a table.
    bool (*concerns)(const Request &request, bool inStream);
    /// What the request becomes, and its reply, which is an honest one until then.
    void (*spoil)(Request &request, Reply &reply);
};

/// What happens to a monitor, or to the whole desk, at once.
struct DeskEvent
{
    /// times is 0 where a button lets go of it.
    void (*happen)(VirtualDesk &desk, std::size_t monitor, const MonitorEvent &event);
    /// Whether it lasts, for its button.
    bool (*lasts)(const SimulatedMonitor &monitor) = nullptr;
};

/// A button of the monitor's panel. It is down while its fault waits or lasts.
struct FaultButton
{
    const char *label = nullptr; ///< no button without
    const char *tip = nullptr;
    int times = 1;                     ///< requests that a press is for
    std::chrono::milliseconds wait{0}; ///< that a press is for
};

/// Whether a fault is for one VCP code: each of its codes has a count of its own where one is needed.
enum class FaultCode { None, Possible, Needed };

/// Something that can go wrong with a monitor, or be mended: a row of the table is all that there is to it.
struct MonitorFault
{
    const char *word; ///< in scripts; its button is named "fault_<word>"
    std::variant<WireFault, DeskEvent> does;
    int times = 1; ///< requests, unless a script says else
    FaultCode code = FaultCode::None;
    FaultButton button = {};
};

/// The table. Of those that lie in wait for the same request at the same moment the first one strikes.
std::span<const MonitorFault> monitorFaults();

/// The row of a word; null for a word that no row has.
const MonitorFault *findFault(const QString &word);

/// A request that is not heard at all.
void stayUnheard(Request &request, Reply &reply);

/// The faults that wait for the next requests of one monitor. Not thread-safe: the monitor guards it.
class Faults
{
public:
    /// Replaces what was armed of it; 0 times takes it away.
    void arm(const MonitorFault &fault, int times, int code = kAnyCommand);
    bool isArmed(const MonitorFault &fault) const;
    void clear() { m_armed.clear(); }

    /// Whether one strikes the request, which is used up by one and does what it does.
    bool strike(WireFault::Moment moment, bool inStream, Request &request, Reply &reply);

private:
    struct Armed
    {
        const MonitorFault *fault;
        int times;
        int code;
    };

    std::vector<Armed> m_armed; ///< in the order of the table
};

} // namespace virtualdesk
