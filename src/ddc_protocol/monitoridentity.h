#pragma once

#include <QString>

#include "ddc_protocol/displayenumeration.h"

/// An identity as one text that may be a key in a file.
QString identityText(const MonitorIdentity &identity);

/// Which monitor commands go to now, as such a text. Empty when there is none. For the interface thread, which alone
/// changes the list and need not wait for a slow request, and for whoever holds the transport.
QString monitorIdentity();

/// What that one calls itself, for a sentence. Interface thread.
QString monitorName();
