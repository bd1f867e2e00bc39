#pragma once

#include <algorithm>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace virtualdesk {

/// Who is told of something that happens on any thread, and in the same thread. Safe from any thread; one that is told
/// may end itself or another, or make more of it happen.
template <typename... Told> class Listeners
{
public:
    using Listener = std::function<void(Told...)>;

    /// The number by which it ends.
    int add(Listener listener)
    {
        const std::lock_guard lock(m_mutex);
        m_listeners.emplace_back(m_next, std::move(listener));
        return m_next++;
    }

    /// When this returns no call is under way in another thread and none comes any more.
    void remove(int id)
    {
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_listeners, [id](const auto &entry) { return entry.first == id; });
    }

    void tell(Told... told)
    {
        const std::lock_guard lock(m_mutex);
        const auto listeners = m_listeners; // one may end itself, or another
        for (const auto &[id, listener] : listeners) {
            if (std::ranges::count(m_listeners, id, &Entry::first) > 0)
                listener(told...);
        }
    }

private:
    using Entry = std::pair<int, Listener>;

    std::recursive_mutex m_mutex;
    std::vector<Entry> m_listeners;
    int m_next = 1;
};

} // namespace virtualdesk
