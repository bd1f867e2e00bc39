#include "ddc_protocol/linkrecords.h"

#include <algorithm>

LinkRecords linkRecords;

void LinkRecords::note(const MonitorIdentity &monitor, const LinkRequest &request)
{
    {
        const std::lock_guard lock(m_mutex);
        auto found = std::find_if(m_records.begin(), m_records.end(),
                                  [&monitor](const auto &entry) { return entry.first == monitor; });
        if (found == m_records.end())
            found = m_records.insert(found, {monitor, LinkRecord()});
        found->second.add(request);
    }
    const std::lock_guard lock(m_observerMutex);
    if (m_observer)
        m_observer();
}

LinkRecord LinkRecords::recordOf(const MonitorIdentity &monitor) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_records.begin(), m_records.end(),
                                    [&monitor](const auto &entry) { return entry.first == monitor; });
    return found == m_records.end() ? LinkRecord() : found->second;
}

void LinkRecords::clear()
{
    const std::lock_guard lock(m_mutex);
    m_records.clear();
}

void LinkRecords::setObserver(std::function<void()> observer)
{
    const std::lock_guard lock(m_observerMutex);
    m_observer = std::move(observer);
}
