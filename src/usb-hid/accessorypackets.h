#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The reports that the LED-matrix accessory understands. Every function fills a report of the caller's and allocates
// nothing; what the caller then writes is report.written(), never more.

inline constexpr std::uint16_t kAccessoryVendor = 0x0416;
inline constexpr std::uint16_t kAccessoryProduct = 0x3F00;

/// Cells (or characters of a file) that one chunk carries.
inline constexpr std::size_t kChunkCells = 56;

inline constexpr std::uint8_t kTextMode = 0x2F; ///< mode byte of an uploaded text; animations use 0x24 to 0x28

/// The commands, byte 1 of a report.
inline constexpr std::uint8_t kUploadCommand = 0xC0;
inline constexpr std::uint8_t kLiveCommand = 0xE0;
inline constexpr std::uint8_t kChoiceCommand = 0xB0;
inline constexpr std::uint8_t kSettingsCommand = 0xA0;
inline constexpr std::uint8_t kLampCommand = 0xD0;

inline constexpr std::uint8_t kCommandReport = 0x01; ///< report id, byte 0, of all but the game events
inline constexpr std::uint8_t kGameReport = 0x06;

/// The sub-commands, byte 2 of a report.
inline constexpr std::uint8_t kLiveFrame = 0x00;
inline constexpr std::uint8_t kLiveStop = 0x01;
inline constexpr std::uint8_t kSettingsSub = 0x0A;
inline constexpr std::uint8_t kChoiceSub = 0x0B;
inline constexpr std::uint8_t kLampSub = 0x04;

/// The game report's kinds, byte 1.
inline constexpr std::uint8_t kGameSettings = 1;
inline constexpr std::uint8_t kGameChoice = 2;

/// A buffer for one report, and how much of it is to be written.
struct AccessoryReport
{
    std::array<std::uint8_t, 65> bytes;
    std::size_t length;

    std::span<const std::uint8_t> written() const { return std::span(bytes).first(length); }
};

/// Chunks that a number of cells or characters takes; 0 for none.
constexpr int chunkCount(std::int64_t cells)
{
    constexpr auto kEach = static_cast<std::int64_t>(kChunkCells);
    return static_cast<int>((cells + kEach - 1) / kEach);
}

/// Announces an upload: 5 bytes, of which the checksum covers the command and the mode.
void buildUploadStart(AccessoryReport &report, std::uint8_t mode);

/// A part of an uploaded file: total and index as 16-bit numbers, index from 1; at most 56 characters, of which "1" is
/// a lit cell (0xFE) and any other, line ends included, a dark one.
void buildUploadChunk(AccessoryReport &report, std::uint8_t mode, int total, int index,
                      std::span<const char> characters);

/// A part of a frame that is shown at once: at most 56 cells, of which those of value 1 are lit (0xFF).
void buildLiveChunk(AccessoryReport &report, int total, int index, std::span<const std::int32_t> cells);

/// Ends the live display.
void buildLiveStop(AccessoryReport &report);

/// Which animations are played, one number a chosen one, in the order of their buttons; at most 60, those beyond are
/// left out.
void buildAnimationChoice(AccessoryReport &report, std::span<const std::uint8_t> animations);

/// The accessory's own settings: how long an animation is played, and how bright.
void buildSystemSettings(AccessoryReport &report, std::uint8_t level, std::uint8_t brightness);

/// Switches the matrix on or off.
void buildMatrixLamp(AccessoryReport &report, bool open);

/// The game events that are shown: one flag a button, in their order; at most 62. Always 64 bytes without a checksum.
void buildGameChoice(AccessoryReport &report, std::span<const bool> events);

/// How the game events are shown: playing interval and brightness. Always 64 bytes without a checksum.
void buildGameSettings(AccessoryReport &report, std::uint8_t interval, std::uint8_t brightness);
