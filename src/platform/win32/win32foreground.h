#pragma once

#include "platform/foreground.h"

namespace platform {

/// user32's window events and kernel32's process names.
class Win32Foreground final : public Foreground
{
public:
    void *setWinEventHook(std::uint32_t first, std::uint32_t last, WinEventCallback callback) override;
    void unhookWinEvent(void *hook) override;
    std::uint32_t processOf(WindowHandle window) override;
    void *openProcess(std::uint32_t access, std::uint32_t processId) override;
    void closeProcess(void *process) override;
    std::optional<QString> imageName(void *process) override;
    QString windowText(WindowHandle window) override;
};

} // namespace platform
