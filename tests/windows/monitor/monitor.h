#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>

/// A monitor that understands announced commands and serves the block of its scene mode. What it is and what it
/// refuses stands in files of its folder, and so does every request that reached it:
///   registers.txt  "<code> <value>" lines, read once: what the codes hold at first
///   block.txt      40 numbers, read once: the scene-mode block
///   refuse.txt     "R <code>" or "W <code>" lines, read at every request: what is not answered now
///   requests.txt   written: "W 99 9", "R 22 -> 10", "R 22 refused"
///   bytes.txt      written: the same in full, "R 22 0 1 10 100": what was written, whether it went well, both answers
///   handles.txt    written: "opened 0", "closed 0"
///   times.txt      written: when each of them came, in milliseconds
/// Codes are hexadecimal, values decimal.
class Monitor
{
public:
    explicit Monitor(std::filesystem::path folder);

    struct Reply
    {
        std::uint16_t current = 0;
        std::uint16_t maximum = 0;
    };

    /// The answer to a read; nothing when it is refused or was not announced.
    std::optional<Reply> read(std::uint8_t code);

    /// Whether a write was taken.
    bool write(std::uint8_t code, std::uint16_t value);

    /// What became of a handle.
    void recordHandle(const std::string &line) const { append("handles.txt", line); }

private:
    void takeRegisters(const char *file);
    /// How far the host is in a command: each begins with the vendor code, a block read goes on after the scene code.
    enum class Step { Idle, AnnouncedRead, AnnouncedWrite, SceneAnswered, InBlock };

    std::optional<Reply> answer(std::uint8_t code);
    Reply chunk() const;
    bool refuses(const std::string &request) const;
    void record(const std::string &line, const std::string &request, int value, std::optional<Reply> reply) const;
    void append(const char *file, const std::string &line) const;

    std::filesystem::path m_folder;
    std::mutex m_mutex;
    std::array<std::uint16_t, 256> m_registers = {};
    std::array<std::uint8_t, 40> m_block = {};
    Step m_step = Step::Idle;
    std::uint16_t m_announcedValue = 0;
    std::size_t m_chunk = 0;
};
