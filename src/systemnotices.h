#pragma once

#include <optional>

#include "platform/nativemessage.h"

/// What the system tells after which the monitor may be another one, in another state, or reached by another handle, or
/// that nobody is there.
enum class SystemNotice {
    Woke,            ///< the computer was asleep
    DisplaysChanged, ///< resolution, arrangement or number of the displays
    DisplayOn,       ///< the display was switched off and is on again
    Unlocked,        ///< somebody is back at the session
    Locked,          ///< the session is locked: nobody looks
};

/// The notice that a native message brings; nothing for any other message.
std::optional<SystemNotice> systemNoticeOf(const platform::NativeMessage &message);
