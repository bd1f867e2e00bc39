#pragma once

#include "platform/presence.h"
#include "virtualdesk/virtualdesk.h"

namespace platform {

/// The simulated desk's user.
class VirtualPresence final : public Presence
{
public:
    explicit VirtualPresence(virtualdesk::VirtualDesk &desk) : m_desk(desk) {}

    std::optional<milliseconds> sinceInput() override { return m_desk.user.idle; }
    std::optional<NotificationState> notificationState() override
    {
        return static_cast<NotificationState>(m_desk.user.notificationState);
    }

private:
    virtualdesk::VirtualDesk &m_desk;
};

} // namespace platform
