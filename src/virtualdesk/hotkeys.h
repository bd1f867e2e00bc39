#pragma once

#include <cstdint>
#include <vector>

namespace virtualdesk {

/// The system's table of hot keys. Interface thread only.
class HotKeys
{
public:
    /// A key of the program; false for an id that the system does not allow and for a key that is in use already. Two
    /// keys may have the same id.
    bool add(int id, std::uint32_t modifiers, std::uint32_t virtualKey);
    /// Takes one key of this id away; false when there is none.
    bool remove(int id);

    /// Another program registers the key. False when it is in use already; then it stays with whoever has it.
    bool take(std::uint32_t modifiers, std::uint32_t virtualKey);

    /// Somebody presses the key: whoever registered it gets a message. False when that is not the program.
    bool press(std::uint32_t modifiers, std::uint32_t virtualKey) const;

    /// How many keys the program has.
    std::size_t count() const;

private:
    struct Entry
    {
        int id;
        std::uint32_t modifiers;
        std::uint32_t virtualKey;
    };

    const Entry *find(std::uint32_t modifiers, std::uint32_t virtualKey) const;

    std::vector<Entry> m_entries;
};

} // namespace virtualdesk
