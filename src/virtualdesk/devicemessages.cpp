#include "virtualdesk/devicemessages.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QWindow>

namespace virtualdesk {

namespace {

/// Reaches the handler that the toolkit itself calls for native messages.
struct WindowAccess : QWindow
{
    using QWindow::nativeEvent;
};

QWindow *findWindow(WId id)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return nullptr;
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        // winId would create a native handle for a window that has none.
        if (window->handle() != nullptr && window->winId() == id)
            return window;
    }
    return nullptr;
}

} // namespace

bool deliverNativeMessage(platform::NativeMessage message, qintptr *result)
{
    const QByteArray eventType(platform::kNativeEventType);
    qintptr unused = 0;
    if (result == nullptr)
        result = &unused;
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    if (dispatcher != nullptr && dispatcher->filterNativeEvent(eventType, &message, result))
        return true;
    QWindow *window = findWindow(reinterpret_cast<WId>(message.window));
    return window != nullptr && (window->*(&WindowAccess::nativeEvent))(eventType, &message, result);
}

void *DeviceRegistrations::add(WId window, const platform::Guid &interfaceClass)
{
    m_nextToken += 4;
    m_registrations.push_back({m_nextToken, window, interfaceClass});
    return reinterpret_cast<void *>(m_nextToken);
}

bool DeviceRegistrations::remove(void *token)
{
    const auto value = reinterpret_cast<std::uintptr_t>(token);
    return std::erase_if(m_registrations, [value](const Registration &entry) { return entry.token == value; }) > 0;
}

void DeviceRegistrations::broadcast(std::uint64_t event, const platform::Guid &interfaceClass) const
{
    platform::DeviceInterfaceBroadcast body;
    body.head.size = sizeof body;
    body.head.deviceType = platform::kDeviceTypeInterface;
    body.interfaceClass = interfaceClass;
    const auto registrations = m_registrations; // a handler may end or renew its registration
    for (const Registration &registration : registrations) {
        if (!(registration.interfaceClass == interfaceClass))
            continue;
        platform::NativeMessage message;
        message.window = reinterpret_cast<void *>(registration.window);
        message.message = platform::kMessageDeviceChange;
        message.wParam = event;
        message.lParam = reinterpret_cast<std::intptr_t>(&body);
        deliverNativeMessage(message);
    }
}

void DeviceRegistrations::addSystem(WId window)
{
    if (window != 0)
        m_systemWindows.push_back(window);
}

void DeviceRegistrations::removeSystem(WId window)
{
    std::erase(m_systemWindows, window);
}

void DeviceRegistrations::tellSystem(std::uint32_t message, std::uint64_t wParam, const void *lParam) const
{
    const auto windows = m_systemWindows; // a handler may end its registration
    for (const WId window : windows) {
        platform::NativeMessage native;
        native.window = reinterpret_cast<void *>(window);
        native.message = message;
        native.wParam = wParam;
        native.lParam = reinterpret_cast<std::intptr_t>(lParam);
        deliverNativeMessage(native);
    }
}

} // namespace virtualdesk
