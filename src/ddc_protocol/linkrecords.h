#pragma once

#include <functional>
#include <mutex>
#include <utility>
#include <vector>

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkrecord.h"

/// The records of all monitors that were talked to, one for each. Safe from any thread.
class LinkRecords
{
public:
    /// The transport notes every request here, in the order of the wire.
    void note(const MonitorIdentity &monitor, const LinkRequest &request);

    /// A copy; an empty record for a monitor that was not talked to.
    LinkRecord recordOf(const MonitorIdentity &monitor) const;

    /// Forgets everything.
    void clear();

    /// Who is told that something was noted, on the thread of the request; empty for nobody.
    void setObserver(std::function<void()> observer);

private:
    mutable std::mutex m_mutex;
    std::vector<std::pair<MonitorIdentity, LinkRecord>> m_records;

    std::mutex m_observerMutex;
    std::function<void()> m_observer;
};

/// The one set of records. Filled by the transport, read by the health page.
extern LinkRecords linkRecords;
