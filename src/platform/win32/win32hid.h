#pragma once

#include "platform/hid.h"

namespace platform {

/// hidapi itself, which is begun by its first use and ended with the process.
class Win32Hid final : public Hid
{
public:
    HidEntry *enumerate(std::uint16_t vendor, std::uint16_t product) override;
    HidIds ids(const HidEntry *entry) override;
    HidEntry *next(const HidEntry *entry) override;
    void freeEnumeration(HidEntry *entry) override;
    HidDevice *open(std::uint16_t vendor, std::uint16_t product) override;
    int setNonblocking(HidDevice *device, bool nonblocking) override;
    int write(HidDevice *device, std::span<const std::uint8_t> report) override;
    void close(HidDevice *device) override;
};

} // namespace platform
