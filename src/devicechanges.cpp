// The session's view of devices being plugged in and out.

#include <QDebug>

#include "ddc_protocol/transport.h"
#include "platform/desk.h"
#include "searchdevicedlg.h"
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

void SearchDeviceDlg::registerNotifications()
{
    for (const platform::Guid &interfaceClass : {kAccessoryClass, kHidClass, kMonitorClass})
        m_registrations.push_back(platform::desk().deviceNotifications().registerInterface(winId(), interfaceClass));
    platform::desk().deviceNotifications().registerSystem(winId());
}

bool SearchDeviceDlg::nativeEvent(const QByteArray &eventType, void *message, qintptr *result)
{
    if (eventType == platform::kNativeEventType) {
        const auto *native = static_cast<const platform::NativeMessage *>(message);
        if (native->message == platform::kMessageDeviceChange) {
            const auto *broadcast = reinterpret_cast<const platform::DeviceBroadcast *>(native->lParam);
            if (native->wParam == platform::kDeviceRemoveComplete)
                handleRemoval(broadcast);
            else if (native->wParam == platform::kDeviceArrival)
                handleArrival(broadcast);
        }
        const std::optional<SystemNotice> notice = systemNoticeOf(*native);
        if (notice && m_host)
            m_host->systemNoticed(*notice);
    }
    return QDialog::nativeEvent(eventType, message, result);
}

void SearchDeviceDlg::handleRemoval(const platform::DeviceBroadcast *broadcast)
{
    qDebug() << "devicetype=" << typeOf(broadcast) << "Device Remove";
    if (!m_host)
        return;
    m_host->deviceRemoved();
    if (interfaceClassOf(broadcast))
        m_host->deviceRemoved(); // the interface goes after the device itself
}

void SearchDeviceDlg::handleArrival(const platform::DeviceBroadcast *broadcast)
{
    qDebug() << "Device Arrival\r";
    const platform::Guid *arrived = interfaceClassOf(broadcast);
    if (!arrived)
        return;
    if (m_host)
        m_host->deviceArrived();
    // The accessory comes as itself and as a HID device, whichever is told first: what was found and opened before is
    // not what arrived now, so the lookup may not answer from memory.
    if (*arrived == kAccessoryClass || *arrived == kHidClass) {
        clearHidFlags();
        if (m_host)
            m_host->reopenHidDevice();
    }
    if (*arrived == kMonitorClass)
        requestSearchAfter(kMonitorArrivalDelay);
}
