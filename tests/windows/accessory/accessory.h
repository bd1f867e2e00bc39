#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

/// A LED-matrix accessory that takes every report and understands none. What it does stands in a file of its folder,
/// what happened to it in another:
///   state.txt    read at every call; without it the accessory is plugged in and well
///                  "absent"       it is not plugged in; a handle that is open then stays dead for good
///                  "failing"      writes are not taken
///                  "vanish <n>"   it is unplugged at the n-th write from now on
///   happened.txt written: "open", "nonblocking", "close", and a report each "01 D0 04 01 82 A1", with " failed" behind
///                it when it was not taken
class Accessory
{
public:
    /// Without a folder the accessory never is plugged in.
    explicit Accessory(std::filesystem::path folder);

    bool isPluggedIn();

    /// A number for the open device, which dies with it; 0 when there is none.
    unsigned open();

    bool write(unsigned handle, std::span<const unsigned char> report);

    void record(const std::string &line) const;

private:
    void readState();
    void unplug();

    std::filesystem::path m_folder;
    std::string m_state; ///< as it was read last
    bool m_isPluggedIn = true;
    bool m_isFailing = false;
    unsigned m_writesLeft = 0; ///< until it vanishes; 0: it does not
    unsigned m_handle = 1;     ///< of the device that is plugged in, another one each time
};
