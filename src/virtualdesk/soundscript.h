#pragma once

#include <vector>

#include "virtualdesk/scriptobject.h"
#include "virtualdesk/simulatedendpoint.h"

namespace virtualdesk {

/// Reads the "audio" of a desk script (see parseDeskScript) into a set-up and its faults.
void readSoundScript(ScriptObject &root, EndpointSetup &setup, std::vector<AudioFault> &faults);

} // namespace virtualdesk
