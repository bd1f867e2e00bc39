#include "virtualdesk/hotkeys.h"

#include <algorithm>

#include "virtualdesk/devicemessages.h"

namespace virtualdesk {

namespace {

constexpr int kHighestId = 0xBFFF; // the ids above it are for shared libraries
constexpr int kOtherProgram = -1;

} // namespace

bool HotKeys::add(int id, std::uint32_t modifiers, std::uint32_t virtualKey)
{
    if (id < 0 || id > kHighestId || find(modifiers, virtualKey) != nullptr)
        return false;
    m_entries.push_back({id, modifiers, virtualKey});
    return true;
}

bool HotKeys::remove(int id)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [id](const Entry &entry) { return id >= 0 && entry.id == id; });
    if (found == m_entries.end())
        return false;
    m_entries.erase(found);
    return true;
}

bool HotKeys::take(std::uint32_t modifiers, std::uint32_t virtualKey)
{
    if (find(modifiers, virtualKey) != nullptr)
        return false;
    m_entries.push_back({kOtherProgram, modifiers, virtualKey});
    return true;
}

bool HotKeys::press(std::uint32_t modifiers, std::uint32_t virtualKey) const
{
    const Entry *entry = find(modifiers, virtualKey);
    if (entry == nullptr || entry->id == kOtherProgram)
        return false;
    platform::NativeMessage message;
    message.message = platform::kMessageHotKey;
    message.wParam = static_cast<std::uint64_t>(entry->id);
    message.lParam = static_cast<std::int64_t>(virtualKey << 16 | modifiers);
    deliverNativeMessage(message);
    return true;
}

std::size_t HotKeys::count() const
{
    return static_cast<std::size_t>(std::count_if(m_entries.begin(), m_entries.end(),
                                                  [](const Entry &entry) { return entry.id != kOtherProgram; }));
}

const HotKeys::Entry *HotKeys::find(std::uint32_t modifiers, std::uint32_t virtualKey) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [=](const Entry &entry) {
        return entry.modifiers == modifiers && entry.virtualKey == virtualKey;
    });
    return found == m_entries.end() ? nullptr : &*found;
}

} // namespace virtualdesk
