#pragma once

#include <vector>

#include "virtualdesk/applications.h"
#include "virtualdesk/scriptobject.h"

namespace virtualdesk {

/// Reads the "programs" of a desk script (see parseDeskScript).
std::vector<Application> readPrograms(ScriptObject &root);

} // namespace virtualdesk
