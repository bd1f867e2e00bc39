// A program that comes to the front when it is told to: it shows a window with the file's own name, <name>.exe, as its
// title, and each time a file <name>.come lies in the working folder it removes that file and announces its window as
// the one in front. Wine does not announce that by itself. <name>.came tells when, in milliseconds, a line each time.
// <name>.place tells each place that the window had, and what windows may fill of the screen, a line each: left, top,
// right and bottom of both. It runs until it is killed.

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>

#include <windows.h>

namespace {

namespace fs = std::filesystem;

constexpr DWORD kPollMs = 5;

fs::path ownFile()
{
    std::array<wchar_t, MAX_PATH> path = {};
    GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
    return path.data();
}

long long nowMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

/// Where a window is and where windows may be.
struct Place
{
    RECT window = {};
    RECT work = {};

    explicit Place(HWND of)
    {
        GetWindowRect(of, &window);
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    }
};

void tell(std::ofstream &file, const Place &place)
{
    for (const RECT &rect : {place.window, place.work})
        file << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ' ';
    file << std::endl;
}

void handleMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

} // namespace

int wmain()
{
    const fs::path name = ownFile().stem();
    HWND window = CreateWindowExW(0, L"STATIC", ownFile().filename().c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 1300,
                                  20, 240, 120, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window)
        return 1;
    std::ofstream came(fs::path(name) += L".came", std::ios::binary);
    std::ofstream places(fs::path(name) += L".place", std::ios::binary);
    RECT told = {};
    const fs::path order = fs::path(name) += L".come";
    for (;;) {
        handleMessages();
        if (const Place place(window); !EqualRect(&place.window, &told)) {
            tell(places, place);
            told = place.window;
        }
        std::error_code error;
        if (fs::remove(order, error)) {
            came << nowMs() << std::endl;
            NotifyWinEvent(EVENT_SYSTEM_FOREGROUND, window, OBJID_WINDOW, CHILDID_SELF);
        }
        Sleep(kPollMs);
    }
}
