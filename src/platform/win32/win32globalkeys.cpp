#include "platform/win32/win32globalkeys.h"

#include <windows.h>

#include "platform/nativemessage.h"

namespace platform {

static_assert(kMessageHotKey == WM_HOTKEY);
static_assert(kModifierAlt == MOD_ALT);
static_assert(kModifierControl == MOD_CONTROL);
static_assert(kModifierShift == MOD_SHIFT);
static_assert(kModifierWin == MOD_WIN);

bool Win32GlobalKeys::registerKey(int id, std::uint32_t modifiers, std::uint32_t virtualKey)
{
    return RegisterHotKey(nullptr, id, modifiers, virtualKey) != FALSE;
}

bool Win32GlobalKeys::unregisterKey(int id)
{
    return UnregisterHotKey(nullptr, id) != FALSE;
}

} // namespace platform
