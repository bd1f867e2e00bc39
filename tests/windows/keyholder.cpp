// A program that holds a hot key: "keyholder <modifiers> <virtual key>". Once the key is its own it makes the file
// held.txt in the working folder, and notes a line there each time the key is pressed. It runs until it is killed.
// "keyholder <name>" holds a mutex that nobody else may open, as one of a user with more rights.

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <windows.h>

#include <sddl.h>

int wmain(int argc, wchar_t **argv)
{
    if (argc != 2 && argc != 3) {
        std::fputs("usage: keyholder <modifiers> <virtual key> | <name>\n", stderr);
        return 2;
    }
    const auto number = [argv](int place) { return static_cast<UINT>(std::wcstoul(argv[place], nullptr, 0)); };
    SECURITY_ATTRIBUTES nobody = {sizeof nobody, nullptr, FALSE};
    ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:", SDDL_REVISION_1, &nobody.lpSecurityDescriptor, nullptr);
    if (argc == 2 ? !CreateMutexW(&nobody, FALSE, argv[1]) : !RegisterHotKey(nullptr, 1, number(1), number(2)))
        return 1;
    std::ofstream held("held.txt", std::ios::binary);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_HOTKEY)
            held << "pressed" << std::endl;
    }
    return 0;
}
