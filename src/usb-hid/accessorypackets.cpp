#include "usb-hid/accessorypackets.h"

#include <algorithm>

#include "usb-hid/crc16.h"

namespace {

constexpr std::size_t kPayload = 3;      // where it begins in reports without chunks
constexpr std::size_t kChunkPayload = 7; // behind the total and the index
constexpr std::size_t kCrcBytes = 2;
constexpr std::size_t kGameLength = 64;
constexpr std::size_t kGamePayload = 2;
constexpr std::uint8_t kUploadLit = 0xFE; // the device tells uploaded cells from live ones by this
constexpr std::uint8_t kLiveLit = 0xFF;
constexpr std::uint8_t kEventShown = 0xFE;

void begin(AccessoryReport &report, std::uint8_t command, std::uint8_t sub)
{
    report.bytes = {};
    report.bytes[0] = kCommandReport;
    report.bytes[1] = command;
    report.bytes[2] = sub;
}

/// Appends the checksum behind the payload. The high byte goes first, the reverse of what this checksum is used to.
void finish(AccessoryReport &report, std::size_t end)
{
    const std::uint16_t crc = crc16(std::span(report.bytes).subspan(1, end - 1));
    report.bytes[end] = static_cast<std::uint8_t>(crc >> 8);
    report.bytes[end + 1] = static_cast<std::uint8_t>(crc);
    report.length = end + kCrcBytes;
}

void putWord(AccessoryReport &report, std::size_t place, int value)
{
    report.bytes[place] = static_cast<std::uint8_t>(value >> 8);
    report.bytes[place + 1] = static_cast<std::uint8_t>(value);
}

/// A chunk of cells, each of which lit turns into the byte for it or 0.
template <typename Cell>
void buildChunk(AccessoryReport &report, int total, int index, std::span<const Cell> cells, Cell on, std::uint8_t lit)
{
    putWord(report, 3, total);
    putWord(report, 5, index);
    const std::size_t count = std::min(cells.size(), kChunkCells);
    std::transform(cells.begin(), cells.begin() + static_cast<std::ptrdiff_t>(count),
                   report.bytes.begin() + kChunkPayload,
                   [on, lit](Cell cell) { return cell == on ? lit : std::uint8_t(0); });
    finish(report, kChunkPayload + count);
}

void beginGame(AccessoryReport &report, std::uint8_t kind)
{
    report.bytes = {};
    report.bytes[0] = kGameReport;
    report.bytes[1] = kind;
    report.length = kGameLength;
}

} // namespace

void buildUploadStart(AccessoryReport &report, std::uint8_t mode)
{
    begin(report, kUploadCommand, mode);
    finish(report, kPayload);
}

void buildUploadChunk(AccessoryReport &report, std::uint8_t mode, int total, int index,
                      std::span<const char> characters)
{
    begin(report, kUploadCommand, mode);
    buildChunk(report, total, index, characters, '1', kUploadLit);
}

void buildLiveChunk(AccessoryReport &report, int total, int index, std::span<const std::int32_t> cells)
{
    begin(report, kLiveCommand, kLiveFrame);
    buildChunk(report, total, index, cells, std::int32_t(1), kLiveLit);
}

void buildLiveStop(AccessoryReport &report)
{
    begin(report, kLiveCommand, kLiveStop);
    finish(report, kPayload);
}

void buildAnimationChoice(AccessoryReport &report, std::span<const std::uint8_t> animations)
{
    begin(report, kChoiceCommand, kChoiceSub);
    const std::size_t count = std::min(animations.size(), report.bytes.size() - kPayload - kCrcBytes);
    std::copy_n(animations.begin(), count, report.bytes.begin() + kPayload);
    finish(report, kPayload + count);
}

void buildSystemSettings(AccessoryReport &report, std::uint8_t level, std::uint8_t brightness)
{
    begin(report, kSettingsCommand, kSettingsSub);
    report.bytes[kPayload] = level;
    report.bytes[kPayload + 1] = brightness;
    finish(report, kPayload + 2);
}

void buildMatrixLamp(AccessoryReport &report, bool open)
{
    begin(report, kLampCommand, kLampSub);
    report.bytes[kPayload] = open ? 1 : 0;
    finish(report, kPayload + 1);
}

void buildGameChoice(AccessoryReport &report, std::span<const bool> events)
{
    beginGame(report, kGameChoice);
    const std::size_t count = std::min(events.size(), kGameLength - kGamePayload);
    for (std::size_t i = 0; i < count; ++i)
        report.bytes[kGamePayload + i] = events[i] ? kEventShown : 0;
}

void buildGameSettings(AccessoryReport &report, std::uint8_t interval, std::uint8_t brightness)
{
    beginGame(report, kGameSettings);
    report.bytes[kGamePayload] = interval;
    report.bytes[kGamePayload + 1] = brightness;
}
