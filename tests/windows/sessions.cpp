// The registrations for messages about the session, written down in the folder that the environment variable
// QUORVEL_TEST_MONITOR names; and the calls of the same library that the toolkit imports.

#include <filesystem>
#include <fstream>

#include <windows.h>

namespace {

BOOL record(const char *what)
{
    wchar_t folder[MAX_PATH] = {};
    GetEnvironmentVariableW(L"QUORVEL_TEST_MONITOR", folder, MAX_PATH);
    std::ofstream(std::filesystem::path(folder) / "sessions.txt", std::ios::app) << what << '\n';
    return TRUE;
}

} // namespace

extern "C" {

__declspec(dllexport) BOOL WINAPI WTSRegisterSessionNotification(HWND window, DWORD flags)
{
    return record(window && flags == 0 ? "registered" : "wrong");
}

__declspec(dllexport) BOOL WINAPI WTSUnRegisterSessionNotification(HWND window)
{
    return record(window ? "unregistered" : "wrong");
}

__declspec(dllexport) BOOL WINAPI WTSQuerySessionInformationW(HANDLE, DWORD, int, LPWSTR *text, DWORD *length)
{
    *text = nullptr;
    *length = 0;
    return FALSE;
}

__declspec(dllexport) void WINAPI WTSFreeMemory(void *)
{
}

} // extern "C"
