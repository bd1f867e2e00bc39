#pragma once

#include <cstdint>
#include <span>

namespace platform {

struct HidEntry;  ///< an entry of an enumeration, hidapi's hid_device_info; only the platform looks inside
struct HidDevice; ///< an open device

/// Maker and product, as the USB bus counts them.
struct HidIds
{
    std::uint16_t vendor;
    std::uint16_t product;
};

/// The USB devices of the HID class, by the calls of hidapi. From any thread, but by one caller at a time.
class Hid
{
public:
    virtual ~Hid() = default;

    /// The first of the connected devices, 0 standing for any vendor or product; null when there is none.
    virtual HidEntry *enumerate(std::uint16_t vendor, std::uint16_t product) = 0;
    /// Whose it is; of an entry that is not null.
    virtual HidIds ids(const HidEntry *entry) = 0;
    /// The entry behind it; null behind the last.
    virtual HidEntry *next(const HidEntry *entry) = 0;
    /// Releases an entry and those behind it; null does nothing.
    virtual void freeEnumeration(HidEntry *entry) = 0;

    /// Opens the first device of the two ids, whatever its serial number; null when that fails.
    virtual HidDevice *open(std::uint16_t vendor, std::uint16_t product) = 0;
    /// 0, or -1 on failure.
    virtual int setNonblocking(HidDevice *device, bool nonblocking) = 0;
    /// Writes one report, whose first byte is its id: the bytes written, or -1.
    virtual int write(HidDevice *device, std::span<const std::uint8_t> report) = 0;
    /// Closes what open gave; nobody writes to it meanwhile.
    virtual void close(HidDevice *device) = 0;
};

} // namespace platform
