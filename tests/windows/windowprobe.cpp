// Sends the arrival of a device to the windows of the program: "windowprobe <title> monitor", "hid" or "accessory"; the
// end of the session: "session"; or what the system tells: "resume", "displays" or "unlock". Every top-level window of
// the process that owns the window of that title gets it, as the system's broadcast would reach them.

#include <cstdio>
#include <cwchar>

#include <windows.h>

#include <dbt.h>
#include <wtsapi32.h>

namespace {

struct DeviceClass
{
    const wchar_t *name;
    GUID guid;
};

constexpr DeviceClass kClasses[] = {
    {L"monitor", {0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}}},
    {L"hid", {0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}}},
    {L"accessory", {0xE6327CAD, 0xDCEC, 0x4949, {0xAE, 0x8A, 0x99, 0x1E, 0x97, 0x6A, 0x79, 0xD2}}},
};
struct Notice
{
    const wchar_t *name;
    UINT message;
    WPARAM word;
};

constexpr Notice kNotices[] = {
    {L"resume", WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC},
    {L"displays", WM_DISPLAYCHANGE, 32},
    {L"unlock", WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK},
};
constexpr UINT kPatienceMs = 5000;

struct Search
{
    const wchar_t *title = nullptr;
    const DeviceClass *arrived = nullptr;
    const Notice *notice = nullptr;
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

/// The answer of a window; nothing when it is another program's or does not answer in time.
bool send(const Search &search, HWND window, UINT message, WPARAM word, LPARAM body, DWORD_PTR *answer)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == search.process &&
           SendMessageTimeoutW(window, message, word, body, SMTO_ABORTIFHUNG, kPatienceMs, answer);
}

/// Asks and tells as the system does; the window of a refusal ends the program with 1.
BOOL CALLBACK endSession(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DWORD_PTR answer = 0;
    if (!send(*search, window, WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF, &answer))
        return TRUE;
    if (!answer) {
        search->sent = 0;
        return FALSE;
    }
    send(*search, window, WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF, &answer);
    ++search->sent;
    return TRUE;
}

BOOL CALLBACK sendArrival(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DEV_BROADCAST_DEVICEINTERFACE_W arrival = {};
    arrival.dbcc_size = sizeof(arrival);
    arrival.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
    arrival.dbcc_classguid = search->arrived->guid;
    DWORD_PTR result = 0;
    if (send(*search, window, WM_DEVICECHANGE, DBT_DEVICEARRIVAL, reinterpret_cast<LPARAM>(&arrival), &result))
        ++search->sent;
    return TRUE;
}

BOOL CALLBACK sendNotice(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DWORD_PTR result = 0;
    if (send(*search, window, search->notice->message, search->notice->word, 0, &result))
        ++search->sent;
    return TRUE;
}

} // namespace

int wmain(int count, wchar_t **arguments)
{
    Search search;
    for (const DeviceClass &deviceClass : kClasses) {
        if (count == 3 && std::wcscmp(arguments[2], deviceClass.name) == 0)
            search.arrived = &deviceClass;
    }
    for (const Notice &notice : kNotices) {
        if (count == 3 && std::wcscmp(arguments[2], notice.name) == 0)
            search.notice = &notice;
    }
    const bool session = count == 3 && std::wcscmp(arguments[2], L"session") == 0;
    if (!search.arrived && !search.notice && !session) {
        std::fputs("usage: windowprobe <window title> monitor|hid|accessory|session|resume|displays|unlock\n", stderr);
        return 2;
    }
    search.title = arguments[1];
    EnumWindows(findOwner, reinterpret_cast<LPARAM>(&search));
    if (search.process)
        EnumWindows(session ? endSession : search.notice ? sendNotice : sendArrival, reinterpret_cast<LPARAM>(&search));
    std::printf("%d\n", search.sent);
    return search.sent > 0 ? 0 : 1;
}
