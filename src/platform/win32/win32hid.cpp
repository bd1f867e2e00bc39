#include "platform/win32/win32hid.h"

#include <hidapi.h>

namespace platform {

namespace {

hid_device_info *native(HidEntry *entry)
{
    return reinterpret_cast<hid_device_info *>(entry);
}

const hid_device_info *native(const HidEntry *entry)
{
    return reinterpret_cast<const hid_device_info *>(entry);
}

hid_device *native(HidDevice *device)
{
    return reinterpret_cast<hid_device *>(device);
}

} // namespace

HidEntry *Win32Hid::enumerate(std::uint16_t vendor, std::uint16_t product)
{
    return reinterpret_cast<HidEntry *>(hid_enumerate(vendor, product));
}

HidIds Win32Hid::ids(const HidEntry *entry)
{
    return {native(entry)->vendor_id, native(entry)->product_id};
}

HidEntry *Win32Hid::next(const HidEntry *entry)
{
    return reinterpret_cast<HidEntry *>(native(entry)->next);
}

void Win32Hid::freeEnumeration(HidEntry *entry)
{
    hid_free_enumeration(native(entry));
}

HidDevice *Win32Hid::open(std::uint16_t vendor, std::uint16_t product)
{
    return reinterpret_cast<HidDevice *>(hid_open(vendor, product, nullptr));
}

int Win32Hid::setNonblocking(HidDevice *device, bool nonblocking)
{
    return hid_set_nonblocking(native(device), nonblocking ? 1 : 0);
}

int Win32Hid::write(HidDevice *device, std::span<const std::uint8_t> report)
{
    return hid_write(native(device), report.data(), report.size());
}

void Win32Hid::close(HidDevice *device)
{
    hid_close(native(device));
}

} // namespace platform
