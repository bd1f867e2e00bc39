// Sends the arrival of a monitor to the windows of the program: "windowprobe <title>". Every top-level window of the
// process that owns the window of that title gets it, as the system's broadcast would reach them.

#include <cstdio>
#include <cwchar>

#include <windows.h>

#include <dbt.h>

namespace {

constexpr GUID kMonitorInterface = {0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}};
constexpr UINT kPatienceMs = 5000;

struct Search
{
    const wchar_t *title = nullptr;
    DWORD process = 0;
    int sent = 0;
};

BOOL CALLBACK findOwner(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    wchar_t title[256] = {};
    GetWindowTextW(window, title, 256);
    if (std::wcscmp(title, search->title) != 0)
        return TRUE;
    GetWindowThreadProcessId(window, &search->process);
    return FALSE;
}

BOOL CALLBACK sendArrival(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search->process)
        return TRUE;
    DEV_BROADCAST_DEVICEINTERFACE_W arrival = {};
    arrival.dbcc_size = sizeof(arrival);
    arrival.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    arrival.dbcc_classguid = kMonitorInterface;
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(window, WM_DEVICECHANGE, DBT_DEVICEARRIVAL, reinterpret_cast<LPARAM>(&arrival),
                            SMTO_ABORTIFHUNG, kPatienceMs, &result))
        ++search->sent;
    return TRUE;
}

} // namespace

int wmain(int count, wchar_t **arguments)
{
    if (count != 2) {
        std::fputs("usage: windowprobe <window title>\n", stderr);
        return 2;
    }
    Search search;
    search.title = arguments[1];
    EnumWindows(findOwner, reinterpret_cast<LPARAM>(&search));
    if (search.process)
        EnumWindows(sendArrival, reinterpret_cast<LPARAM>(&search));
    std::printf("%d\n", search.sent);
    return search.sent > 0 ? 0 : 1;
}
