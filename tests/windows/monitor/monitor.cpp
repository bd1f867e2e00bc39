#include "monitor.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <utility>

namespace {

constexpr std::uint8_t kVendorCode = 0x99;
constexpr std::uint8_t kSceneCode = 0x22;
constexpr std::uint8_t kNextChunk = 0xFE;
constexpr std::uint8_t kSameChunk = 0xFF;
constexpr std::uint16_t kMaximum = 100;
constexpr std::size_t kChunkSize = 4;

std::string requestName(char kind, std::uint8_t code)
{
    char text[8];
    std::snprintf(text, sizeof text, "%c %02X", kind, code);
    return text;
}

} // namespace

Monitor::Monitor(std::filesystem::path folder) : m_folder(std::move(folder))
{
    takeRegisters("registers.txt");
    unsigned value = 0;
    std::ifstream block(m_folder / "block.txt");
    for (std::uint8_t &byte : m_block) {
        if (block >> value)
            byte = static_cast<std::uint8_t>(value);
    }
}

void Monitor::takeRegisters(const char *file)
{
    std::ifstream registers(m_folder / file);
    unsigned code = 0;
    unsigned value = 0;
    while (registers >> std::hex >> code >> std::dec >> value)
        m_registers.at(code) = static_cast<std::uint16_t>(value);
}

std::optional<Monitor::Reply> Monitor::read(std::uint8_t code)
{
    const std::lock_guard lock(m_mutex);
    takeRegisters("buttons.txt"); // what somebody set at the monitor itself
    const std::string request = requestName('R', code);
    std::optional<Reply> reply;
    if (!refuses(request))
        reply = answer(code);
    record(request + (reply ? " -> " + std::to_string(reply->current) : " refused"), request, 0, reply);
    return reply;
}

bool Monitor::write(std::uint8_t code, std::uint16_t value)
{
    const std::lock_guard lock(m_mutex);
    const std::string request = requestName('W', code);
    const bool announced = m_step == Step::AnnouncedWrite && m_announcedValue == value;
    const bool taken = !refuses(request) && (code == kVendorCode || announced);
    if (taken && code != kVendorCode)
        m_registers[code] = value;
    m_step = taken && code == kVendorCode ? Step::AnnouncedWrite : Step::Idle;
    m_announcedValue = value;
    record(request + " " + std::to_string(value) + (taken ? "" : " refused"), request, value,
           taken ? std::optional(Reply()) : std::nullopt);
    return taken;
}

std::optional<Monitor::Reply> Monitor::answer(std::uint8_t code)
{
    if (code == kVendorCode) {
        m_step = Step::AnnouncedRead;
        return Reply{0, kMaximum};
    }
    switch (m_step) {
    case Step::AnnouncedRead:
        m_step = code == kSceneCode ? Step::SceneAnswered : Step::Idle;
        return Reply{m_registers[code], kMaximum};
    case Step::SceneAnswered: // the third code of a block read is the mode that is asked for
        m_step = Step::InBlock;
        m_chunk = 0;
        return chunk();
    case Step::InBlock:
        if (code == kNextChunk)
            ++m_chunk;
        if (code == kNextChunk || code == kSameChunk)
            return chunk();
        return std::nullopt;
    case Step::Idle:
    case Step::AnnouncedWrite:
        break;
    }
    return std::nullopt;
}

Monitor::Reply Monitor::chunk() const
{
    const auto byte = [this](std::size_t place) {
        const std::size_t index = m_chunk * kChunkSize + place;
        return index < m_block.size() ? m_block[index] : std::uint8_t{0};
    };
    return {static_cast<std::uint16_t>(byte(2) << 8 | byte(3)), static_cast<std::uint16_t>(byte(0) << 8 | byte(1))};
}

bool Monitor::refuses(const std::string &request) const
{
    std::ifstream refused(m_folder / "refuse.txt");
    for (std::string line; std::getline(refused, line);) {
        if (line == request)
            return true;
    }
    return false;
}

void Monitor::record(const std::string &line, const std::string &request, int value, std::optional<Reply> reply) const
{
    append("requests.txt", line);
    const Reply told = reply.value_or(Reply());
    append("bytes.txt", request + ' ' + std::to_string(value) + (reply ? " 1 " : " 0 ") + std::to_string(told.current) +
                            ' ' + std::to_string(told.maximum));
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    append("times.txt", std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()));
}

void Monitor::append(const char *file, const std::string &line) const
{
    std::ofstream(m_folder / file, std::ios::app | std::ios::binary) << line + '\n';
}
