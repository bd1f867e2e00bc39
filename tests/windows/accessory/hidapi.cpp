// The calls of hidapi that the program imports, answered by a simulated accessory among other people's devices. The
// folder of its files is named by the environment variable QUORVEL_TEST_ACCESSORY.

#include <iterator>
#include <mutex>

#include <windows.h>

#include <hidapi.h>

#include "accessory.h"

struct hid_device_
{
    unsigned handle;
};

namespace {

struct Ids
{
    unsigned short vendor;
    unsigned short product;
};

constexpr Ids kAccessory = {0x0416, 0x3F00};
// A keyboard, and two that share one number each with the accessory.
constexpr Ids kOthers[] = {{0x046D, 0xC31C}, {0x0416, 0x3F01}, {0x0417, 0x3F00}};

std::mutex s_mutex;

Accessory &accessory()
{
    static Accessory theAccessory([] {
        wchar_t folder[MAX_PATH] = {};
        GetEnvironmentVariableW(L"QUORVEL_TEST_ACCESSORY", folder, MAX_PATH);
        return std::filesystem::path(folder);
    }());
    return theAccessory;
}

hid_device_info *entry(const Ids &ids, hid_device_info *next)
{
    auto *info = new hid_device_info{};
    info->vendor_id = ids.vendor;
    info->product_id = ids.product;
    info->next = next;
    return info;
}

bool matches(const Ids &ids, unsigned short vendor, unsigned short product)
{
    return (vendor == 0 || vendor == ids.vendor) && (product == 0 || product == ids.product);
}

} // namespace

extern "C" {

hid_device_info *HID_API_CALL hid_enumerate(unsigned short vendor, unsigned short product)
{
    const std::lock_guard lock(s_mutex);
    hid_device_info *list = matches(kOthers[0], vendor, product) ? entry(kOthers[0], nullptr) : nullptr;
    if (accessory().isPluggedIn() && matches(kAccessory, vendor, product))
        list = entry(kAccessory, list);
    for (auto other = std::next(std::begin(kOthers)); other != std::end(kOthers); ++other) {
        if (matches(*other, vendor, product))
            list = entry(*other, list);
    }
    return list;
}

void HID_API_CALL hid_free_enumeration(hid_device_info *list)
{
    while (list) {
        hid_device_info *next = list->next;
        delete list;
        list = next;
    }
}

hid_device *HID_API_CALL hid_open(unsigned short vendor, unsigned short product, const wchar_t *serial)
{
    const std::lock_guard lock(s_mutex);
    const unsigned handle =
        vendor == kAccessory.vendor && product == kAccessory.product && !serial ? accessory().open() : 0;
    return handle ? new hid_device{handle} : nullptr;
}

int HID_API_CALL hid_set_nonblocking(hid_device *, int nonblocking)
{
    const std::lock_guard lock(s_mutex);
    accessory().record(nonblocking ? "nonblocking" : "blocking");
    return 0;
}

int HID_API_CALL hid_write(hid_device *device, const unsigned char *data, size_t length)
{
    const std::lock_guard lock(s_mutex);
    return accessory().write(device->handle, {data, length}) ? static_cast<int>(length) : -1;
}

void HID_API_CALL hid_close(hid_device *device)
{
    const std::lock_guard lock(s_mutex);
    accessory().record("close");
    delete device;
}

} // extern "C"
