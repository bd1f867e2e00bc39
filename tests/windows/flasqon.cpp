// Stands in for the program that upgrades the monitor: it leaves where it lies and what it was started with, one
// argument a line, in the file flasqon.txt of the working folder.

#include <cstdlib>
#include <filesystem>
#include <fstream>

int wmain(int argc, wchar_t **argv)
{
    {
        std::ofstream file("flasqon.new", std::ios::binary);
        file << std::filesystem::path(_wpgmptr).parent_path().string() << '\n';
        for (int i = 1; i < argc; ++i)
            file << std::filesystem::path(argv[i]).string() << '\n';
    }
    std::filesystem::rename("flasqon.new", "flasqon.txt"); // a reader never meets half of it
    return 0;
}
