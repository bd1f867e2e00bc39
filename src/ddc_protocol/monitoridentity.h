#pragma once

#include <QString>

#include "ddc_protocol/displayenumeration.h"

/// An identity as one text that may be a key in a file.
QString identityText(const MonitorIdentity &identity);

/// Which monitor commands go to now, as such a text. Empty when there is none. For the interface thread, which alone
/// changes the list and need not wait for a slow request, and for whoever holds the transport.
QString monitorIdentity();

/// The monitor in use when this was made: what the user then answers, or wants once more, counts for no other one.
class MonitorAskedAbout
{
public:
    bool isInUse() const { return monitorIdentity() == m_identity; }

    /// Not while there is none.
    bool isAnotherInUse() const { return !isInUse() && !monitorIdentity().isEmpty(); }

private:
    QString m_identity = monitorIdentity();
};

/// What the user is told of an answer that counts no more.
QString otherMonitorText();

/// What that one calls itself, for a sentence. Interface thread.
QString monitorName();
