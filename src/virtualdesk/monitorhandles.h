#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>

namespace virtualdesk {

/// The handles of physical monitors, and what is done wrong with handles. Safe from any thread.
class MonitorHandles
{
public:
    /// The first handle is 0, which is one like any other.
    void *open(std::size_t monitor);
    void close(void *handle);
    /// The monitor behind a handle; nothing for one that is not open, which is counted.
    std::optional<std::size_t> monitorOf(void *handle);
    int countOpen() const;

    /// Uses of handles, of any kind, that were closed, outdated or never given.
    int faults() const;
    void countFault();

private:
    mutable std::mutex m_mutex; // guards what follows
    std::map<void *, std::size_t> m_open;
    std::uintptr_t m_next = 0;
    int m_faults = 0;
};

} // namespace virtualdesk
