#pragma once

#include <cstdint>
#include <optional>

#include <QString>

namespace platform {

/// A top-level window of any program (HWND). Opaque.
using WindowHandle = void *;

/// Called for an event of a window, on the thread that set the hook, from its event loop (WINEVENTPROC).
using WinEventCallback = void (*)(std::uint32_t event, WindowHandle window);

inline constexpr std::uint32_t kEventForeground = 3;         ///< EVENT_SYSTEM_FOREGROUND
inline constexpr std::uint32_t kProcessQueryAndRead = 0x410; ///< PROCESS_QUERY_INFORMATION | PROCESS_VM_READ

/// Which program is in front, and whose window that is. All calls are made on the interface thread.
class Foreground
{
public:
    virtual ~Foreground() = default;

    /// SetWinEventHook for a range of events of all processes and threads, without a module, out of context. One hook
    /// at a time; null when the system refuses it.
    virtual void *setWinEventHook(std::uint32_t first, std::uint32_t last, WinEventCallback callback) = 0;

    /// UnhookWinEvent; null is ignored.
    virtual void unhookWinEvent(void *hook) = 0;

    /// GetWindowThreadProcessId; 0 for a window that is gone.
    virtual std::uint32_t processOf(WindowHandle window) = 0;

    /// OpenProcess, not inheritable; null when the process is protected or gone.
    virtual void *openProcess(std::uint32_t access, std::uint32_t processId) = 0;

    /// CloseHandle of what openProcess gave, which is not null.
    virtual void closeProcess(void *process) = 0;

    /// QueryFullProcessImageNameW into 260 characters: the program's path with backslashes; nothing when it fails, as
    /// it does for a longer path.
    virtual std::optional<QString> imageName(void *process) = 0;

    /// GetWindowTextW, up to 511 characters; empty for a window that is gone or has no title.
    virtual QString windowText(WindowHandle window) = 0;
};

} // namespace platform
