#pragma once

#include "virtualdesk/simulatedmonitor.h"

/// A command as the vendor protocol wants it, announced by the same value.
inline bool writePair(virtualdesk::SimulatedMonitor &monitor, std::uint8_t code, std::uint32_t value)
{
    return monitor.write(0x99, value).ok() && monitor.write(code, value).ok();
}

/// A question as the vendor protocol wants it, announced by another; the second reply.
inline virtualdesk::Reply readPair(virtualdesk::SimulatedMonitor &monitor, std::uint8_t code)
{
    monitor.read(0x99);
    return monitor.read(code);
}
