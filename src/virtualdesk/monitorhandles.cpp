#include "virtualdesk/monitorhandles.h"

namespace virtualdesk {

void *MonitorHandles::open(std::size_t monitor)
{
    const std::lock_guard lock(m_mutex);
    auto *handle = reinterpret_cast<void *>(m_next++);
    m_open.emplace(handle, monitor);
    return handle;
}

void MonitorHandles::close(void *handle)
{
    const std::lock_guard lock(m_mutex);
    if (m_open.erase(handle) == 0)
        ++m_faults;
}

std::optional<std::size_t> MonitorHandles::monitorOf(void *handle)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_open.find(handle);
    if (found != m_open.end())
        return found->second;
    ++m_faults;
    return std::nullopt;
}

int MonitorHandles::countOpen() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_open.size());
}

int MonitorHandles::faults() const
{
    const std::lock_guard lock(m_mutex);
    return m_faults;
}

void MonitorHandles::countFault()
{
    const std::lock_guard lock(m_mutex);
    ++m_faults;
}

} // namespace virtualdesk
