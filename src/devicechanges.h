#pragma once

#include <functional>
#include <vector>

#include <QWindow>

#include "platform/nativemessage.h"

class SessionHost;

/// The session's view of what the system tells it: devices that are plugged in and out, and notices.
class DeviceChanges
{
public:
    /// From now on the window is told of devices; the function is called a while after a monitor's arrival.
    DeviceChanges(WId window, std::function<void(int delay)> searchAfter);
    ~DeviceChanges();
    Q_DISABLE_COPY_MOVE(DeviceChanges)

    /// Tells the host, which may be null, what a message of the window says.
    void follow(const platform::NativeMessage &message, SessionHost *host) const;

private:
    void handleArrival(const platform::DeviceBroadcast *broadcast, SessionHost *host) const;
    static void handleRemoval(const platform::DeviceBroadcast *broadcast, SessionHost *host);

    const WId m_window;
    const std::function<void(int delay)> m_searchAfter;
    std::vector<void *> m_registrations;
};
