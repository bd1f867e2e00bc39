#include "virtualdesk/faults.h"

namespace virtualdesk {

namespace {

constexpr std::uint8_t kVendorCode = 0x99;

} // namespace

void Faults::refuse(std::uint8_t code, int times)
{
    m_refusals[code] = times;
}

bool Faults::strikeRefusal(RequestKind kind, std::uint8_t code)
{
    if (kind == RequestKind::Write && take(m_refuseWrites))
        return true;
    return take(m_refusals[code]);
}

bool Faults::take(int &count)
{
    if (count == 0)
        return false;
    if (count > 0)
        --count;
    return true;
}

bool Faults::strikeReply(ReplyFault &fault, std::uint8_t code)
{
    const bool matches = fault.code == kAnyCommand ? code != kVendorCode : code == fault.code;
    return matches && take(fault.times);
}

} // namespace virtualdesk
