// The registrations for messages about the session, written down in the folder that the environment variable
// QUORVEL_TEST_MONITOR names; from the first one, by the program's window, the folder answers where its controls are.
// And the calls of the same library that the toolkit imports.

#include <filesystem>
#include <fstream>

#include <windows.h>

#include <QCoreApplication>

#include "virtualdesk/whereabouts.h"

namespace {

std::filesystem::path testFolder()
{
    wchar_t folder[MAX_PATH] = {};
    GetEnvironmentVariableW(L"QUORVEL_TEST_MONITOR", folder, MAX_PATH);
    return folder;
}

BOOL record(const char *what)
{
    std::ofstream(testFolder() / "sessions.txt", std::ios::app) << what << '\n';
    return TRUE;
}

} // namespace

extern "C" {

__declspec(dllexport) BOOL WINAPI WTSRegisterSessionNotification(HWND window, DWORD flags)
{
    [[maybe_unused]] static const auto *const whereabouts =
        new virtualdesk::Whereabouts(QString::fromStdWString(testFolder().wstring()), qApp);
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
