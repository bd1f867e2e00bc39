#pragma once

#include <vector>

#include <QString>

#include "virtualdesk/simulatedendpoint.h"

class QJsonValue;

namespace virtualdesk {

/// Reads the "audio" of a desk script (see parseDeskScript) into a set-up and its faults. Returns what is wrong with
/// it, or an empty text.
QString readSoundScript(const QJsonValue &value, EndpointSetup &setup, std::vector<AudioFault> &faults);

} // namespace virtualdesk
