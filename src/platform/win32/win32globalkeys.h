#pragma once

#include "platform/globalkeys.h"

namespace platform {

/// user32's hot keys of the calling thread.
class Win32GlobalKeys final : public GlobalKeys
{
public:
    bool registerKey(int id, std::uint32_t modifiers, std::uint32_t virtualKey) override;
    bool unregisterKey(int id) override;
};

} // namespace platform
