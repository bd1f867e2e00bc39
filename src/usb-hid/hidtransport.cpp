#include "usb-hid/hidtransport.h"

#include <QDebug>

#include "platform/desk.h"

// Writers in other threads hold it while they write: a device that is opened anew closes the handle under them.
static std::mutex s_handleMutex;

// All wait for the handle one behind the other: an upload, which takes it again at once, would keep the others out.
static std::mutex s_queueMutex;

HidLock lockHid()
{
    const std::lock_guard queue(s_queueMutex);
    return HidLock(s_handleMutex);
}

bool Fun_hid_find(std::uint16_t vendor, std::uint16_t product)
{
    if (accessoryLink.found)
        return true;
    platform::Hid &hid = platform::desk().hid();
    platform::HidEntry *entry = hid.enumerate(0, 0);
    if (!entry)
        return false;
    for (; entry; entry = hid.next(entry)) {
        const platform::HidIds ids = hid.ids(entry);
        if (ids.vendor == vendor && ids.product == product) {
            qDebug() << "HID device find";
            accessoryLink.found = ids;
            break;
        }
    }
    hid.freeEnumeration(entry); // meant: only from the match on, the entries before it are kept
    if (!accessoryLink.found)
        qDebug() << "HID device  not find";
    return accessoryLink.found.has_value();
}

platform::HidDevice *Fun_hid_open(std::uint16_t vendor, std::uint16_t product)
{
    if (!accessoryLink.found || accessoryLink.opened)
        return nullptr;
    platform::HidDevice *device = platform::desk().hid().open(vendor, product);
    accessoryLink.opened = device != nullptr;
    if (device)
        qDebug() << "HID open OK" << static_cast<void *>(device);
    else
        qDebug() << "HID open Fail ";
    return device;
}

void clearHidFlags()
{
    accessoryLink.found.reset();
    accessoryLink.opened = false;
}

static void closeHandle(const HidLock &)
{
    if (platform::HidDevice *device = accessoryLink.handle.exchange(nullptr))
        platform::desk().hid().close(device);
}

void closeHid()
{
    closeHandle(lockHid());
}

void reopenHid()
{
    const HidLock lock = lockHid(); // an upload that goes on meanwhile must not find it closed
    closeHandle(lock);
    if (!Fun_hid_find(kAccessoryVendor, kAccessoryProduct) || accessoryLink.opened)
        return;
    if (platform::HidDevice *device = Fun_hid_open(kAccessoryVendor, kAccessoryProduct)) {
        accessoryLink.handle = device;
        platform::desk().hid().setNonblocking(device, true);
    }
}

HidWrite writeHid(const AccessoryReport &report)
{
    return writeHid(report, lockHid());
}

HidWrite writeHid(const AccessoryReport &report, const HidLock &)
{
    platform::HidDevice *device = accessoryLink.handle;
    if (!device)
        return HidWrite::NoHandle;
    return platform::desk().hid().write(device, report.written()) < 0 ? HidWrite::Failed : HidWrite::Done;
}

bool writePageReport(const AccessoryReport &report)
{
    const HidWrite result = writeHid(report);
    if (result == HidWrite::Failed)
        qDebug() << kHidWriteError;
    return result == HidWrite::Done;
}
