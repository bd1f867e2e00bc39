#pragma once

#include <mutex>

namespace virtualdesk {

/// Calls of one kind that the disk refuses: by number from now on, 1 the next one, 0 none. Safe from any thread.
class FaultyCall
{
public:
    /// Lets calls fail from the n-th on.
    void failFrom(int call) { set(call, true); }
    /// Lets the n-th call fail, and no other.
    void failAt(int call) { set(call, false); }

    /// Whether the call that is made now fails.
    bool failsNow()
    {
        const std::lock_guard lock(m_mutex);
        if (m_left == 0 || --m_left > 0)
            return false;
        m_left = m_stays ? 1 : 0;
        return true;
    }

private:
    void set(int call, bool stays)
    {
        const std::lock_guard lock(m_mutex);
        m_stays = stays;
        m_left = call;
    }

    std::mutex m_mutex; // guards what follows
    int m_left = 0;
    bool m_stays = false;
};

/// What the simulated desk's disk does not do.
struct FileFaults
{
    FaultyCall write; ///< takes half of the bytes
    FaultyCall flush;
    FaultyCall replace;
};

} // namespace virtualdesk
