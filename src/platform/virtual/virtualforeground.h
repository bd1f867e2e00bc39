#pragma once

#include "platform/foreground.h"
#include "virtualdesk/applications.h"

namespace platform {

/// The simulated desk's programs, one of which is in front.
class VirtualForeground final : public Foreground
{
public:
    explicit VirtualForeground(virtualdesk::Applications &applications) : m_applications(applications) {}

    void *setWinEventHook(std::uint32_t first, std::uint32_t last, WinEventCallback callback) override
    {
        return m_applications.setHook(first, last, callback);
    }
    void unhookWinEvent(void *hook) override { m_applications.unhook(hook); }
    std::uint32_t processOf(WindowHandle window) override { return m_applications.processOf(window); }
    void *openProcess(std::uint32_t, std::uint32_t processId) override { return m_applications.openProcess(processId); }
    void closeProcess(void *process) override { m_applications.closeProcess(process); }
    std::optional<QString> imageName(void *process) override { return m_applications.imageName(process); }
    QString windowText(WindowHandle window) override { return m_applications.windowText(window); }

private:
    virtualdesk::Applications &m_applications;
};

} // namespace platform
