#include "devicechanges.h"

#include <utility>

#include <QDebug>

#include "platform/desk.h"
#include "sessionhost.h"
#include "usb-hid/hidtransport.h"

namespace {

constexpr platform::Guid kAccessoryClass = {
    0xE6327CAD, 0xDCEC, 0x4949, {0xAE, 0x8A, 0x99, 0x1E, 0x97, 0x6A, 0x79, 0xD2}};
constexpr platform::Guid kHidClass = {0x4D1E55B2, 0xF16F, 0x11CF, {0x88, 0xCB, 0x00, 0x11, 0x11, 0x00, 0x00, 0x30}};
constexpr platform::Guid kMonitorClass = {0xE6F07B5F, 0xEE97, 0x4A90, {0xB0, 0x76, 0x33, 0xF5, 0x7B, 0xF4, 0xEA, 0xA7}};
constexpr int kMonitorArrivalDelay = 1000; // ms: the display set-up changes for a while

/// 0 for a broadcast that is not there, or too short to have a type.
std::uint32_t typeOf(const platform::DeviceBroadcast *broadcast)
{
    return broadcast && broadcast->size >= sizeof(platform::DeviceBroadcast) ? broadcast->deviceType : 0;
}

/// The class of a device-interface broadcast; null for any other, and for one that is too short to hold it.
const platform::Guid *interfaceClassOf(const platform::DeviceBroadcast *broadcast)
{
    if (typeOf(broadcast) != platform::kDeviceTypeInterface ||
        broadcast->size < sizeof(platform::DeviceInterfaceBroadcast))
        return nullptr;
    return &reinterpret_cast<const platform::DeviceInterfaceBroadcast *>(broadcast)->interfaceClass;
}

} // namespace

DeviceChanges::DeviceChanges(WId window, std::function<void(int)> searchAfter)
    : m_window(window), m_searchAfter(std::move(searchAfter))
{
    for (const platform::Guid &interfaceClass : {kAccessoryClass, kHidClass, kMonitorClass})
        m_registrations.push_back(platform::desk().deviceNotifications().registerInterface(m_window, interfaceClass));
    platform::desk().deviceNotifications().registerSystem(m_window);
}

DeviceChanges::~DeviceChanges()
{
    for (void *registration : m_registrations)
        platform::desk().deviceNotifications().unregister(registration);
    platform::desk().deviceNotifications().unregisterSystem(m_window);
}

void DeviceChanges::follow(const platform::NativeMessage &message, SessionHost *host) const
{
    if (message.message == platform::kMessageDeviceChange) {
        const auto *broadcast = reinterpret_cast<const platform::DeviceBroadcast *>(message.lParam);
        if (message.wParam == platform::kDeviceRemoveComplete)
            handleRemoval(broadcast, host);
        else if (message.wParam == platform::kDeviceArrival)
            handleArrival(broadcast, host);
    }
    const std::optional<SystemNotice> notice = systemNoticeOf(message);
    if (notice && host)
        host->systemNoticed(*notice);
}

void DeviceChanges::handleRemoval(const platform::DeviceBroadcast *broadcast, SessionHost *host)
{
    qDebug() << "devicetype=" << typeOf(broadcast) << "Device Remove";
    if (!host)
        return;
    host->deviceRemoved();
    if (interfaceClassOf(broadcast))
        host->deviceRemoved(); // the interface goes after the device itself
}

void DeviceChanges::handleArrival(const platform::DeviceBroadcast *broadcast, SessionHost *host) const
{
    qDebug() << "Device Arrival\r";
    const platform::Guid *arrived = interfaceClassOf(broadcast);
    if (!arrived)
        return;
    if (host)
        host->deviceArrived();
    // The accessory comes as itself and as a HID device, whichever is told first: what was found and opened before is
    // not what arrived now, so the lookup may not answer from memory.
    if (*arrived == kAccessoryClass || *arrived == kHidClass) {
        clearHidFlags();
        if (host)
            host->reopenHidDevice();
    }
    if (*arrived == kMonitorClass)
        m_searchAfter(kMonitorArrivalDelay);
}
