#include "virtualdesk/accessorydecoder.h"

#include "virtualdesk/accessoryforms.h"

namespace virtualdesk {

namespace {

constexpr std::size_t kHead = 3;
constexpr std::size_t kChunkHead = 7;
constexpr std::size_t kTail = 2; // the checksum
constexpr std::size_t kChunkCells = 56;
constexpr std::size_t kGameLength = 64;
constexpr std::uint8_t kUploadLit = 0xFE;
constexpr std::uint8_t kLiveLit = 0xFF;

/// Bit by bit, as the device's own data sheet would have it: nothing is shared with the program that is watched here.
std::uint16_t checksum(std::span<const std::uint8_t> bytes)
{
    std::uint16_t crc = 0xFFFF;
    for (const std::uint8_t byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = static_cast<std::uint16_t>((crc & 1) != 0 ? (crc >> 1) ^ 0xA001 : crc >> 1);
    }
    return crc;
}

int word(std::span<const std::uint8_t> report, std::size_t place)
{
    return report[place] << 8 | report[place + 1];
}

QByteArray bytesOf(std::span<const std::uint8_t> bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

} // namespace

const char *AccessoryDecoder::take(std::span<const std::uint8_t> report)
{
    if (report.empty())
        return "empty report";
    if (report[0] == 0x06)
        return takeGame(report);
    if (report[0] != 0x01)
        return "unknown report";
    if (report.size() < kHead + kTail || report.size() > kChunkHead + kChunkCells + kTail)
        return "wrong length";
    const std::size_t end = report.size() - kTail;
    if (checksum(report.subspan(1, end - 1)) != word(report, end))
        return "wrong checksum";
    return takeCommand(report);
}

const char *AccessoryDecoder::takeCommand(std::span<const std::uint8_t> report)
{
    const auto is = [report](std::uint8_t sub, std::size_t length) {
        return report[2] == sub && report.size() == length;
    };
    switch (report[1]) {
    case 0xC0:
        return takeUpload(report);
    case 0xE0:
        return takeLive(report);
    case 0xB0:
        if (report[2] != 0x0B)
            return "unknown command";
        m_state.animations = bytesOf(report.subspan(kHead, report.size() - kHead - kTail));
        return nullptr;
    case 0xA0:
        if (!is(0x0A, 7))
            return "wrong settings";
        m_state.level = report[3];
        m_state.brightness = report[4];
        return nullptr;
    case 0xD0:
        if (!is(0x04, 6) || report[3] > 1)
            return "wrong lamp";
        m_state.lamp = report[3];
        return nullptr;
    default:
        return "unknown command";
    }
}

const char *AccessoryDecoder::readChunk(std::span<const std::uint8_t> report, std::uint8_t lit, Chunk &chunk)
{
    if (report.size() <= kChunkHead + kTail)
        return "wrong length";
    chunk = {word(report, 3), word(report, 5), report.subspan(kChunkHead, report.size() - kChunkHead - kTail)};
    if (chunk.index < 1 || chunk.index > chunk.total)
        return "wrong chunk index";
    if (chunk.index < chunk.total && chunk.data.size() != kChunkCells)
        return "short chunk";
    for (const std::uint8_t cell : chunk.data) {
        if (cell != lit && cell != 0)
            return "wrong cell";
    }
    return nullptr;
}

const char *AccessoryDecoder::takeUpload(std::span<const std::uint8_t> report)
{
    AccessoryUpload &upload = m_state.upload;
    if (report.size() == kHead + kTail) {
        upload = {};
        upload.mode = report[2];
        ++m_state.uploads;
        m_state.showsLive = false;
        m_uploading = true;
        return nullptr;
    }
    Chunk chunk;
    if (const char *fault = readChunk(report, kUploadLit, chunk))
        return fault;
    if (!m_uploading || report[2] != upload.mode)
        return "chunk without upload";
    if (chunk.index != upload.received + 1 || (upload.total != 0 && chunk.total != upload.total))
        return "chunk out of order";
    upload.total = chunk.total;
    upload.received = chunk.index;
    for (const std::uint8_t cell : chunk.data)
        upload.cells.append(cell == kUploadLit ? '\1' : '\0');
    m_uploading = !upload.isComplete();
    return nullptr;
}

const char *AccessoryDecoder::takeLive(std::span<const std::uint8_t> report)
{
    if (report[2] == 0x01) {
        if (report.size() != kHead + kTail)
            return "wrong length";
        m_state.showsLive = false;
        m_liveIndex = 0;
        return nullptr;
    }
    Chunk chunk;
    if (const char *fault = report[2] != 0 ? "unknown command" : readChunk(report, kLiveLit, chunk))
        return fault;
    const auto cells = static_cast<std::size_t>(matrixCells(m_form));
    if (chunk.total != static_cast<int>((cells + kChunkCells - 1) / kChunkCells))
        return "frame of another form";
    if (chunk.index != 1 && chunk.index != m_liveIndex + 1) // a frame may begin anew at any time
        return "chunk out of order";
    if (chunk.index == 1)
        m_live.clear();
    for (const std::uint8_t cell : chunk.data)
        m_live.push_back(cell == kLiveLit ? 1 : 0);
    m_liveIndex = chunk.index;
    if (chunk.index < chunk.total)
        return nullptr;
    m_liveIndex = 0;
    if (m_live.size() != cells)
        return "wrong frame length";
    m_state.showsLive = true;
    m_state.liveCells = m_live;
    ++m_state.liveFrames;
    return nullptr;
}

const char *AccessoryDecoder::takeGame(std::span<const std::uint8_t> report)
{
    if (report.size() != kGameLength)
        return "wrong length";
    if (report[1] != 1 && report[1] != 2)
        return "unknown command";
    m_state.gameReport = bytesOf(report);
    return nullptr;
}

void AccessoryDecoder::powerOff()
{
    m_uploading = false;
    m_liveIndex = 0;
    m_state.showsLive = false;
}

} // namespace virtualdesk
