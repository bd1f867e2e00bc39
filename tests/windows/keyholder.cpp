// A program that holds a hot key: "keyholder <modifiers> <virtual key>". Once the key is its own it makes the file
// held.txt in the working folder, and notes a line there each time the key is pressed. It runs until it is killed.
// "keyholder <name>" holds a mutex that nobody else may open, as one of a user with more rights, and "keyholder file
// <name>" has a file open that others may write, rename and remove. "keyholder free <name>" waits until nobody holds a
// mutex of that name.

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <fstream>

#include <windows.h>

#include <sddl.h>

namespace {

bool holdMutex(const wchar_t *name)
{
    SECURITY_ATTRIBUTES nobody = {sizeof nobody, nullptr, FALSE};
    ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:", SDDL_REVISION_1, &nobody.lpSecurityDescriptor, nullptr);
    return CreateMutexW(&nobody, FALSE, name) != nullptr;
}

bool holdFile(const wchar_t *name)
{
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CreateFileW(name, GENERIC_READ, kShared, nullptr, OPEN_EXISTING, 0, nullptr) != INVALID_HANDLE_VALUE;
}

bool waitUntilFree(const wchar_t *name)
{
    while (const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, name)) {
        CloseHandle(mutex);
        Sleep(1);
    }
    return true;
}

bool hold(const wchar_t *first, const wchar_t *second)
{
    if (!second)
        return holdMutex(first);
    if (std::wcscmp(first, L"file") == 0)
        return holdFile(second);
    if (std::wcscmp(first, L"free") == 0)
        return waitUntilFree(second);
    return RegisterHotKey(nullptr, 1, std::wcstoul(first, nullptr, 0), std::wcstoul(second, nullptr, 0));
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    if (argc != 2 && argc != 3) {
        std::fputs("usage: keyholder <modifiers> <virtual key> | <name> | file <name> | free <name>\n", stderr);
        return 2;
    }
    if (!hold(argv[1], argv[2])) // which is null behind the last
        return 1;
    std::ofstream held("held.txt", std::ios::binary);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_HOTKEY)
            held << "pressed" << std::endl;
    }
    return 0;
}
