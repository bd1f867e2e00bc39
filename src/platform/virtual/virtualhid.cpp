#include "platform/virtual/virtualhid.h"

#include <vector>

#include "virtualdesk/virtualdesk.h"

namespace platform {

using virtualdesk::SimulatedAccessory;

struct HidEntry
{
    HidIds ids;
    HidEntry *next;
};

namespace {

constexpr HidIds kAccessory{SimulatedAccessory::kVendor, SimulatedAccessory::kProduct};
constexpr HidIds kKeyboard{0x5156, 0x0101};
constexpr HidIds kMouse{0x5156, 0x0102};

/// 0 stands for any.
bool matches(const HidIds &ids, std::uint16_t vendor, std::uint16_t product)
{
    return (vendor == 0 || ids.vendor == vendor) && (product == 0 || ids.product == product);
}

} // namespace

VirtualHid::VirtualHid(virtualdesk::VirtualDesk &desk) : m_desk(desk)
{
}

VirtualHid::~VirtualHid() = default;

HidEntry *VirtualHid::enumerate(std::uint16_t vendor, std::uint16_t product)
{
    std::vector<HidIds> devices;
    if (m_desk.hasHidDevices)
        devices = {kKeyboard, kMouse};
    if (m_desk.accessory().isPlugged())
        devices.insert(devices.begin() + (devices.empty() ? 0 : 1), kAccessory);
    HidEntry *first = nullptr;
    HidEntry *last = nullptr;
    for (const HidIds &ids : devices) {
        if (!matches(ids, vendor, product))
            continue;
        HidEntry &entry = m_entries.emplace_back(HidEntry{ids, nullptr});
        (last != nullptr ? last->next : first) = &entry;
        last = &entry;
    }
    m_desk.hidEntriesHeld = static_cast<int>(m_entries.size());
    return first;
}

HidIds VirtualHid::ids(const HidEntry *entry)
{
    return entry->ids;
}

HidEntry *VirtualHid::next(const HidEntry *entry)
{
    return entry->next;
}

void VirtualHid::freeEnumeration(HidEntry *entry)
{
    while (entry != nullptr) {
        HidEntry *behind = entry->next;
        m_entries.remove_if([entry](const HidEntry &each) { return &each == entry; });
        entry = behind;
    }
    m_desk.hidEntriesHeld = static_cast<int>(m_entries.size());
}

HidDevice *VirtualHid::open(std::uint16_t vendor, std::uint16_t product)
{
    if (!matches(kAccessory, vendor, product))
        return nullptr;
    return static_cast<HidDevice *>(m_desk.accessory().open());
}

int VirtualHid::setNonblocking(HidDevice *device, bool)
{
    return device == nullptr ? -1 : 0;
}

int VirtualHid::write(HidDevice *device, std::span<const std::uint8_t> report)
{
    return m_desk.accessory().write(device, report);
}

void VirtualHid::close(HidDevice *device)
{
    m_desk.accessory().close(device);
}

} // namespace platform
