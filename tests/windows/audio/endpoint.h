#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <vector>

/// What a sound device plays, and in which format.
struct Playing
{
    unsigned rate = 48000; ///< Hz
    unsigned channels = 2;
    unsigned packet = 480; ///< frames
    bool isFloat = true;   ///< whether the mixer's samples are
    unsigned tone = 0;     ///< Hz, the same on all channels; 0: silence
};

/// A sound device that plays a tone and fails as it is told. That stands in a file of its folder, what happened to it
/// in another:
///   sound.txt    read at every call, a word and its values per line; without it there is no device
///                  "rate 48000", "channels 2", "packet 480", "integer", "tone 1000"
///                  "fail <call> <result> [<times>]"   the call gives that hexadecimal result, or it is for ever
///   happened.txt written: "endpoint", "activate", "initialize" with its arguments, "reset"; "unread" when a buffer
///                is given back so, "gone" when no object of the device is left
class Endpoint
{
public:
    /// Without a folder there never is a device.
    explicit Endpoint(std::filesystem::path folder);

    bool isThere();
    Playing playing();

    /// The result that a call is to give; 0 when it is to be done.
    std::uint32_t failure(const std::string &call);

    void record(const std::string &line);

    /// An object of the device is made, or goes.
    void countObject(int change);

private:
    struct Failure
    {
        std::uint32_t result = 0;
        int times = -1; ///< that are left; for ever when negative
    };

    void read();

    const std::filesystem::path m_folder;
    std::mutex m_mutex; // guards what follows
    std::string m_text; ///< as it was read last
    bool m_isThere = false;
    Playing m_playing;
    std::map<std::string, Failure> m_failures;
    int m_objects = 0;
};

/// A packet of the tone that begins at a frame of it, the channels side by side.
std::vector<std::int16_t> tonePacket(const Playing &playing, unsigned begin);
