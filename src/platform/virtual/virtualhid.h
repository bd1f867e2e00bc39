#pragma once

#include <list>

#include "platform/hid.h"

namespace virtualdesk {
class VirtualDesk;
}

namespace platform {

/// hidapi on the simulated desk: a keyboard, the accessory while it is plugged in, and a mouse.
class VirtualHid final : public Hid
{
public:
    explicit VirtualHid(virtualdesk::VirtualDesk &desk);
    ~VirtualHid() override;

    HidEntry *enumerate(std::uint16_t vendor, std::uint16_t product) override;
    HidIds ids(const HidEntry *entry) override;
    HidEntry *next(const HidEntry *entry) override;
    void freeEnumeration(HidEntry *entry) override;
    HidDevice *open(std::uint16_t vendor, std::uint16_t product) override;
    int setNonblocking(HidDevice *device, bool nonblocking) override;
    int write(HidDevice *device, std::span<const std::uint8_t> report) override;
    void close(HidDevice *device) override;

private:
    virtualdesk::VirtualDesk &m_desk;
    std::list<HidEntry> m_entries; ///< that nobody has released
};

} // namespace platform
