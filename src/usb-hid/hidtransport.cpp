#include "usb-hid/hidtransport.h"

#include <QDebug>

#include "platform/desk.h"

// Writers in other threads hold it while they write: a device that is opened anew closes the handle under them.
static std::recursive_mutex s_handleMutex;

std::unique_lock<std::recursive_mutex> lockHid()
{
    return std::unique_lock(s_handleMutex);
}

bool Fun_hid_find(std::uint16_t vendor, std::uint16_t product)
{
    if (hidFound)
        return true;
    platform::Hid &hid = platform::desk().hid();
    platform::HidEntry *entry = hid.enumerate(0, 0);
    if (!entry)
        return hidFound;
    for (; entry; entry = hid.next(entry)) {
        const platform::HidIds ids = hid.ids(entry);
        if (ids.vendor == vendor && ids.product == product) {
            qDebug() << "HID device find";
            hidFound = true;
            break;
        }
    }
    hid.freeEnumeration(entry); // meant: only from the match on, the entries before it are kept
    if (!hidFound)
        qDebug() << "HID device  not find";
    return hidFound;
}

platform::HidDevice *Fun_hid_open(std::uint16_t vendor, std::uint16_t product)
{
    if (!hidFound || hidOpened)
        return nullptr;
    platform::HidDevice *device = platform::desk().hid().open(vendor, product);
    hidOpened = device != nullptr;
    if (device)
        qDebug() << "HID open OK" << static_cast<void *>(device);
    else
        qDebug() << "HID open Fail ";
    return device;
}

void clearHidFlags()
{
    hidFound = false;
    hidOpened = false;
}

void closeHid()
{
    const auto lock = lockHid();
    if (platform::HidDevice *device = hidHandle.exchange(nullptr))
        platform::desk().hid().close(device);
}

void reopenHid()
{
    closeHid();
    if (!Fun_hid_find(kAccessoryVendor, kAccessoryProduct) || hidOpened)
        return;
    if (platform::HidDevice *device = Fun_hid_open(kAccessoryVendor, kAccessoryProduct)) {
        hidHandle = device;
        platform::desk().hid().setNonblocking(device, true);
    }
}

HidWrite writeHid(const AccessoryReport &report)
{
    const auto lock = lockHid();
    platform::HidDevice *device = hidHandle;
    if (!device)
        return HidWrite::NoHandle;
    return platform::desk().hid().write(device, report.written()) < 0 ? HidWrite::Failed : HidWrite::Done;
}

void writePageReport(const AccessoryReport &report)
{
    if (writeHid(report) == HidWrite::Failed)
        qDebug() << kHidWriteError;
}
