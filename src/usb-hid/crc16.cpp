#include "usb-hid/crc16.h"

#include <array>

namespace {

constexpr std::uint16_t kPolynomial = 0xA001;
constexpr std::uint16_t kBegin = 0xFFFF;

/// What eight shifts make of each low byte.
constexpr auto shiftTable()
{
    std::array<std::uint16_t, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        unsigned crc = byte;
        for (int shift = 0; shift < 8; ++shift)
            crc = (crc & 1u) != 0 ? (crc >> 1) ^ kPolynomial : crc >> 1;
        table[byte] = static_cast<std::uint16_t>(crc);
    }
    return table;
}

constexpr auto kShifted = shiftTable();

} // namespace

std::uint16_t crc16(std::span<const std::uint8_t> bytes)
{
    unsigned crc = kBegin;
    for (const std::uint8_t byte : bytes)
        crc = (crc >> 8) ^ kShifted[(crc ^ byte) & 0xFFu];
    return static_cast<std::uint16_t>(crc);
}
