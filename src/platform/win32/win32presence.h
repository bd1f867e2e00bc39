#pragma once

#include "platform/presence.h"

namespace platform {

/// user32's last input, and the shell's opinion of notes on the desktop.
class Win32Presence final : public Presence
{
public:
    std::optional<milliseconds> sinceInput() override;
    std::optional<NotificationState> notificationState() override;
};

} // namespace platform
