#pragma once

#include <QString>

#include "ddc_protocol/displayenumeration.h"

/// An identity as one text that may be a key in a file.
QString identityText(const MonitorIdentity &identity);

/// Which monitor commands go to now, as such a text. Empty when there is none. Safe from any thread.
QString monitorIdentity();
