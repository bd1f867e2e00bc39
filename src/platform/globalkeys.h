#pragma once

#include <cstdint>

namespace platform {

/// System-wide hot keys of the calling thread, without a window. A press arrives at the native event filters as a
/// kNativeEventType message with kMessageHotKey. All calls are made on the interface thread.
class GlobalKeys
{
public:
    virtual ~GlobalKeys() = default;

    /// RegisterHotKey: kModifier... bits and a virtual-key code under an id of 0 to 0xBFFF. False when the system
    /// refuses it, as it does a key that is registered already, by whatever program.
    virtual bool registerKey(int id, std::uint32_t modifiers, std::uint32_t virtualKey) = 0;

    /// UnregisterHotKey; false for an id under which no key is registered.
    virtual bool unregisterKey(int id) = 0;
};

} // namespace platform
