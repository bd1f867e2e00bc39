#include "virtualdesk/faults.h"

#include <algorithm>

namespace virtualdesk {

void Faults::arm(const MonitorFault &fault, int times, int code)
{
    Q_ASSERT(std::holds_alternative<WireFault>(fault.does));
    std::erase_if(m_armed, [&](const Armed &armed) {
        return armed.fault == &fault && (fault.code != FaultCode::Needed || armed.code == code);
    });
    if (times == 0)
        return;
    const auto behind = std::find_if(m_armed.begin(), m_armed.end(),
                                     [&fault](const Armed &armed) { return armed.fault > &fault; }); // of one table
    m_armed.insert(behind, {&fault, times, fault.code == FaultCode::None ? kAnyCommand : code});
}

bool Faults::isArmed(const MonitorFault &fault) const
{
    return std::any_of(m_armed.begin(), m_armed.end(), [&fault](const Armed &armed) { return armed.fault == &fault; });
}

bool Faults::strike(WireFault::Moment moment, bool inStream, Request &request, Reply &reply)
{
    const auto strikes = [&](const Armed &armed) {
        const auto &wire = std::get<WireFault>(armed.fault->does);
        return wire.moment == moment &&
               (armed.code == kAnyCommand ? wire.concerns(request, inStream) : armed.code == request.code);
    };
    const auto found = std::find_if(m_armed.begin(), m_armed.end(), strikes);
    if (found == m_armed.end())
        return false;
    std::get<WireFault>(found->fault->does).spoil(request, reply);
    if (found->times != kForEver && --found->times == 0)
        m_armed.erase(found);
    return true;
}

} // namespace virtualdesk
