// The five monitor-configuration calls that the program imports, answered by a simulated monitor. The folder of its
// files is named by the environment variable QUORVEL_TEST_MONITOR. The program makes one call at a time.

#include <cstdint>
#include <cwchar>
#include <set>
#include <string>

#include <windows.h>

#include "monitor.h"

namespace {

constexpr wchar_t kDescription[] = L"Simulated monitor";

// Laid out as PHYSICAL_MONITOR.
struct PhysicalMonitor
{
    HANDLE handle;
    wchar_t description[128];
};
static_assert(sizeof(PhysicalMonitor) == 264);

Monitor &monitor()
{
    static Monitor theMonitor([] {
        wchar_t folder[MAX_PATH] = {};
        GetEnvironmentVariableW(L"QUORVEL_TEST_MONITOR", folder, MAX_PATH);
        return std::filesystem::path(folder);
    }());
    return theMonitor;
}

std::set<HANDLE> s_open;
std::uintptr_t s_next = 0; // the first one is 0, as it may be on the system

HANDLE openHandle()
{
    const auto handle = reinterpret_cast<HANDLE>(s_next++);
    s_open.insert(handle);
    monitor().recordHandle("opened " + std::to_string(s_next - 1));
    return handle;
}

bool isOpen(HANDLE handle)
{
    if (s_open.contains(handle))
        return true;
    SetLastError(ERROR_INVALID_HANDLE);
    return false;
}

/// A silent monitor as the system reports it.
BOOL notAnswered()
{
    constexpr DWORD kErrorGraphicsI2cErrorReceivingData = 0xC0262583;
    SetLastError(kErrorGraphicsI2cErrorReceivingData);
    return FALSE;
}

} // namespace

extern "C" {

__declspec(dllexport) BOOL WINAPI GetNumberOfPhysicalMonitorsFromHMONITOR(HMONITOR display, DWORD *count)
{
    LoadLibraryW(L"planted.dll"); // whoever in the process asks for a library by its name alone
    *count = display ? 1 : 0;
    return display != nullptr;
}

__declspec(dllexport) BOOL WINAPI
    GetPhysicalMonitorsFromHMONITOR(HMONITOR display, DWORD count, PhysicalMonitor *monitors)
{
    if (!display || count != 1)
        return FALSE;
    monitors[0].handle = openHandle();
    std::wmemcpy(monitors[0].description, kDescription, std::size(kDescription));
    return TRUE;
}

__declspec(dllexport) BOOL WINAPI DestroyPhysicalMonitors(DWORD count, PhysicalMonitor *monitors)
{
    for (DWORD i = 0; i < count; ++i) {
        if (!isOpen(monitors[i].handle))
            return FALSE;
        s_open.erase(monitors[i].handle);
        monitor().recordHandle("closed " + std::to_string(reinterpret_cast<std::uintptr_t>(monitors[i].handle)));
    }
    return TRUE;
}

__declspec(dllexport) BOOL WINAPI
    GetVCPFeatureAndVCPFeatureReply(HANDLE handle, BYTE code, int *type, DWORD *current, DWORD *maximum)
{
    if (!isOpen(handle))
        return FALSE;
    const auto reply = monitor().read(code);
    if (!reply)
        return notAnswered();
    if (type)
        *type = 0;
    *current = reply->current;
    if (maximum)
        *maximum = reply->maximum;
    return TRUE;
}

__declspec(dllexport) BOOL WINAPI SetVCPFeature(HANDLE handle, BYTE code, DWORD value)
{
    if (!isOpen(handle))
        return FALSE;
    return monitor().write(code, static_cast<std::uint16_t>(value)) ? TRUE : notAnswered();
}

} // extern "C"
