#pragma once

#include <cstdint>
#include <span>

/// The checksum of the accessory's reports: CRC-16 with the reflected polynomial 0xA001, begun with 0xFFFF, without a
/// final XOR. Of nothing it is 0xFFFF.
std::uint16_t crc16(std::span<const std::uint8_t> bytes);
