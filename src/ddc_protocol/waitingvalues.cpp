#include "ddc_protocol/waitingvalues.h"

#include <algorithm>

static constexpr platform::milliseconds kPace{120};

void WaitingValues::put(Command command, int value)
{
    if (Entry *waiting = find(command))
        *waiting = {{command, value}};
    else
        m_entries.push_back({{command, value}});
}

std::optional<WaitingValues::Hold> WaitingValues::putPaced(Command command, int value, const QDateTime &now)
{
    if (Entry *waiting = find(command)) {
        waiting->value.value = value;
        return {};
    }
    platform::milliseconds pause{0};
    if (const auto next = m_nextTimes.find(command); next != m_nextTimes.end())
        pause = platform::milliseconds(std::clamp<qint64>(now.msecsTo(next->second), 0, kPace.count()));
    const unsigned hold = pause.count() > 0 ? ++m_holds : 0;
    m_entries.push_back({{command, value}, hold});
    m_nextTimes.insert_or_assign(command, now.addMSecs((pause + kPace).count()));
    return hold != 0 ? std::optional(Hold{hold, pause}) : std::nullopt;
}

WaitingValues::Entry *WaitingValues::find(Command command)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [command](const Entry &entry) { return entry.value.command == command; });
    return found == m_entries.end() ? nullptr : &*found;
}

void WaitingValues::release(unsigned hold)
{
    for (Entry &entry : m_entries)
        entry.hold = entry.hold == hold ? 0 : entry.hold;
}

void WaitingValues::releaseAll()
{
    for (Entry &entry : m_entries)
        entry.hold = 0;
}

bool WaitingValues::hasReady() const
{
    return std::any_of(m_entries.begin(), m_entries.end(), Entry::mayGo);
}

WaitingValues::Value WaitingValues::takeReady()
{
    const auto first = std::find_if(m_entries.begin(), m_entries.end(), Entry::mayGo);
    const Value taken = first->value;
    m_entries.erase(first);
    return taken;
}
