#include "platform/win32/win32foreground.h"

#include <array>

#include <windows.h>

namespace platform {

static_assert(kEventForeground == EVENT_SYSTEM_FOREGROUND);
static_assert(kProcessQueryAndRead == (PROCESS_QUERY_INFORMATION | PROCESS_VM_READ));

namespace {

WinEventCallback s_callback = nullptr; // the system hands no pointer of ours through

void CALLBACK passOn(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG, DWORD, DWORD)
{
    if (s_callback)
        s_callback(event, window);
}

} // namespace

void *Win32Foreground::setWinEventHook(std::uint32_t first, std::uint32_t last, WinEventCallback callback)
{
    s_callback = callback;
    return SetWinEventHook(first, last, nullptr, passOn, 0, 0, WINEVENT_OUTOFCONTEXT);
}

void Win32Foreground::unhookWinEvent(void *hook)
{
    if (!hook)
        return;
    UnhookWinEvent(static_cast<HWINEVENTHOOK>(hook));
    s_callback = nullptr; // also for an event that is on its way
}

std::uint32_t Win32Foreground::processOf(WindowHandle window)
{
    DWORD processId = 0;
    GetWindowThreadProcessId(static_cast<HWND>(window), &processId);
    return processId;
}

void *Win32Foreground::openProcess(std::uint32_t access, std::uint32_t processId)
{
    return OpenProcess(access, FALSE, processId);
}

void Win32Foreground::closeProcess(void *process)
{
    CloseHandle(process);
}

std::optional<QString> Win32Foreground::imageName(void *process)
{
    std::array<wchar_t, 260> path;
    auto length = static_cast<DWORD>(path.size());
    if (!QueryFullProcessImageNameW(process, 0, path.data(), &length))
        return std::nullopt;
    return QString::fromWCharArray(path.data(), static_cast<int>(length));
}

QString Win32Foreground::windowText(WindowHandle window)
{
    std::array<wchar_t, 512> text;
    const int length = GetWindowTextW(static_cast<HWND>(window), text.data(), static_cast<int>(text.size()));
    return QString::fromWCharArray(text.data(), length);
}

} // namespace platform
