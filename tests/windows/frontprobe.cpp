// A program that comes to the front when it is told to: it shows a window with the file's own name, <name>.exe, as its
// title, and each time a file <name>.come lies in the working folder it removes that file and announces its window as
// the one in front. Wine does not announce that by itself. <name>.came tells when, in milliseconds, a line each time.
// <name>.place tells each place that the window had, and what windows may fill of the screen, a line each: left, top,
// right and bottom of both; <name>.front whether the system takes it for the one in front, 1 or 0. With two colours,
// such as ff0000 0000ff, the window fills the screen and its halves have these. It runs until it is killed.

#include <array>
#include <chrono>
#include <cwchar>
#include <filesystem>
#include <fstream>

#include <windows.h>

namespace {

namespace fs = std::filesystem;

constexpr DWORD kPollMs = 5;
constexpr DWORD kPaintMs = 100;

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

HWND makeWindow(bool fillsScreen)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    const RECT place = fillsScreen ? RECT{0, 0, width, height} : RECT{1300, 20, 240, 120};
    return CreateWindowExW(0, L"STATIC", ownFile().filename().c_str(),
                           (fillsScreen ? WS_POPUP : WS_OVERLAPPEDWINDOW) | WS_VISIBLE, place.left, place.top,
                           place.right, place.bottom, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

/// The halves of a window, each in a colour written RRGGBB.
void fill(HWND window, wchar_t **colours)
{
    RECT half = {};
    GetClientRect(window, &half);
    half.right /= 2;
    HDC context = GetDC(window);
    for (int side = 0; side < 2; ++side) {
        const unsigned long colour = std::wcstoul(colours[side], nullptr, 16);
        HBRUSH brush = CreateSolidBrush(RGB(colour >> 16 & 0xff, colour >> 8 & 0xff, colour & 0xff));
        FillRect(context, &half, brush);
        DeleteObject(brush);
        OffsetRect(&half, half.right - half.left, 0);
    }
    ReleaseDC(window, context);
}

} // namespace

int wmain(int count, wchar_t **arguments)
{
    const fs::path name = ownFile().stem();
    const bool hasColours = count == 3;
    HWND window = makeWindow(hasColours);
    if (!window)
        return 1;
    std::ofstream came(fs::path(name) += L".came", std::ios::binary);
    std::ofstream places(fs::path(name) += L".place", std::ios::binary);
    std::ofstream fronts(fs::path(name) += L".front", std::ios::binary);
    RECT told = {};
    bool wasFront = false;
    const fs::path order = fs::path(name) += L".come";
    for (;;) {
        handleMessages();
        if (const Place place(window); !EqualRect(&place.window, &told)) {
            tell(places, place);
            told = place.window;
        }
        if (const bool isFront = GetForegroundWindow() == window; isFront != wasFront) {
            fronts << isFront << std::endl;
            wasFront = isFront;
        }
        if (hasColours)
            fill(window, arguments + 1);
        std::error_code error;
        if (fs::remove(order, error)) {
            came << nowMs() << std::endl;
            NotifyWinEvent(EVENT_SYSTEM_FOREGROUND, window, OBJID_WINDOW, CHILDID_SELF);
        }
        Sleep(hasColours ? kPaintMs : kPollMs);
    }
}
