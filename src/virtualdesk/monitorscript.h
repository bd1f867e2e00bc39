#pragma once

#include "virtualdesk/desksetup.h"
#include "virtualdesk/scriptobject.h"

namespace virtualdesk {

/// Reads one of the "monitors" of a desk script (see parseDeskScript), on one of so many displays.
MonitorSetup readMonitor(ScriptObject object, int displays);

/// Reads what happens to a monitor: an entry of its "faults", or of the script's "events".
MonitorEvent readEvent(ScriptObject &object);

/// Reads a "latency": how long requests take. Without the key both stay; what an object leaves out is 0.
void readLatency(ScriptObject &object, std::chrono::milliseconds &read, std::chrono::milliseconds &write);

} // namespace virtualdesk
