#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <QByteArray>

namespace virtualdesk {

/// What the accessory made of one upload.
struct AccessoryUpload
{
    int mode = 0;
    int total = 0;    ///< chunks announced; 0 until the first one
    int received = 0; ///< chunks in order so far
    QByteArray cells; ///< a byte a cell, 1 lit and 0 dark

    bool isComplete() const { return total > 0 && received == total; }
};

/// What the accessory shows and keeps, as its reports made it.
struct AccessoryState
{
    bool showsLive = false;
    std::vector<std::int32_t> liveCells; ///< the last whole live frame, in frame order
    int liveFrames = 0;                  ///< whole ones so far
    AccessoryUpload upload;              ///< the last one that was begun
    int uploads = 0;                     ///< begun so far
    int lamp = -1;                       ///< 0 off, 1 on; -1 until it is told
    int level = -1;
    int brightness = -1;
    QByteArray animations; ///< the chosen ones
    QByteArray gameReport; ///< the last one, whole
};

/// Reads reports as the device does: id, command, exact length, checksum, and the order of chunks. Not thread-safe: the
/// accessory guards it.
class AccessoryDecoder
{
public:
    /// Takes a report into the state. Null when it is sound, else what is wrong with it, and the state stays.
    const char *take(std::span<const std::uint8_t> report);

    /// How many rows and cells the device has, as the number of its form.
    void setForm(int form) { m_form = form; }
    int form() const { return m_form; }

    /// A device that was pulled out keeps what it was taught and forgets what it was in the middle of.
    void powerOff();

    const AccessoryState &state() const { return m_state; }

private:
    struct Chunk
    {
        int total;
        int index;
        std::span<const std::uint8_t> data;
    };

    const char *takeCommand(std::span<const std::uint8_t> report);
    const char *takeUpload(std::span<const std::uint8_t> report);
    const char *takeLive(std::span<const std::uint8_t> report);
    const char *takeGame(std::span<const std::uint8_t> report);
    static const char *readChunk(std::span<const std::uint8_t> report, std::uint8_t lit, Chunk &chunk);

    int m_form = 0;
    AccessoryState m_state;
    bool m_uploading = false;
    std::vector<std::int32_t> m_live; // of the frame that is under way
    int m_liveIndex = 0;              // of its last chunk; 0 outside a frame
};

} // namespace virtualdesk
