#include "virtualdesk/applicationwindows.h"

#include <algorithm>

#include "platform/process.h"
#include "virtualdesk/simulateddisplays.h"

namespace virtualdesk {

namespace {

constexpr std::uint32_t kInvalidWindow = 1400; // ERROR_INVALID_WINDOW_HANDLE
constexpr QRect kMinimised(-32000, -32000, 160, 28);

} // namespace

ApplicationWindow *ApplicationWindows::find(void *window) const
{
    Application *application = m_applications.ofWindow(window);
    return application != nullptr && application->hasProcess ? &application->window : nullptr;
}

void *ApplicationWindows::foregroundWindow() const
{
    const std::optional<std::size_t> front = m_applications.front();
    return front ? Applications::windowOf(*front) : nullptr;
}

platform::DisplayHandle ApplicationWindows::displayOf(void *window) const
{
    const auto handles = m_displays.enumerate();
    const ApplicationWindow *found = find(window);
    const auto below = std::find_if(handles.begin(), handles.end(), [this, found](platform::DisplayHandle handle) {
        const auto info = found != nullptr ? m_displays.info(handle) : std::nullopt;
        return info && info->bounds.contains(found->rect.center());
    });
    if (below != handles.end())
        return *below;
    return handles.empty() ? nullptr : handles.front();
}

std::optional<QRect> ApplicationWindows::rect(void *window) const
{
    const ApplicationWindow *found = find(window);
    if (found == nullptr)
        return std::nullopt;
    if (found->shape == ApplicationWindow::Shape::Normal || found->shape == ApplicationWindow::Shape::Hidden)
        return found->rect;
    if (found->shape == ApplicationWindow::Shape::Minimised)
        return kMinimised;
    const platform::DisplayHandle display = displayOf(window);
    const auto info = display != nullptr ? m_displays.info(display) : std::nullopt;
    if (!info)
        return found->rect;
    if (found->shape == ApplicationWindow::Shape::FullScreen)
        return info->bounds;
    const int frame = found->frame; // which then lies beyond the screen, above as well
    return info->workArea.adjusted(-frame, -frame, frame, frame);
}

std::optional<QRect> ApplicationWindows::visibleRect(void *window) const
{
    const ApplicationWindow *found = find(window);
    const std::optional<QRect> whole = rect(window);
    if (found == nullptr || !whole)
        return std::nullopt;
    const int frame = found->frame;
    const int above = found->shape == ApplicationWindow::Shape::Maximised ? frame : 0;
    return whole->adjusted(frame, above, -frame, -frame);
}

std::uint32_t ApplicationWindows::style(void *window) const
{
    using Shape = ApplicationWindow::Shape;
    const ApplicationWindow *found = find(window);
    if (found == nullptr)
        return 0;
    std::uint32_t style = found->shape != Shape::Hidden ? platform::kStyleVisible : 0;
    if (found->shape != Shape::FullScreen)
        style |= platform::kStyleCaption | (found->isSizable ? platform::kStyleSizable : 0);
    if (found->shape == Shape::Maximised)
        style |= platform::kStyleMaximised;
    if (found->shape == Shape::Minimised)
        style |= platform::kStyleMinimised;
    return style;
}

QString ApplicationWindows::className(void *window) const
{
    const ApplicationWindow *found = find(window);
    return found != nullptr ? found->className : QString();
}

bool ApplicationWindows::isHung(void *window) const
{
    const ApplicationWindow *found = find(window);
    return found != nullptr && found->isHung;
}

std::uint32_t ApplicationWindows::move(void *window, const QRect &rect)
{
    ApplicationWindow *found = find(window);
    if (found == nullptr)
        return kInvalidWindow;
    if (found->hasMoreRights)
        return platform::kErrorAccessDenied;
    found->rect = QRect(rect.topLeft(), rect.size().expandedTo(found->least));
    Q_EMIT changed();
    return 0;
}

void ApplicationWindows::show(void *window, ApplicationWindow::Shape shape)
{
    ApplicationWindow *found = find(window);
    if (found == nullptr || found->hasMoreRights)
        return;
    found->shape = shape;
    Q_EMIT changed();
}

bool ApplicationWindows::bringToFront(void *window)
{
    for (std::size_t i = 0; i < m_applications.list().size(); ++i) {
        if (Applications::windowOf(i) != window)
            continue;
        m_applications.bringToFront(i);
        Q_EMIT changed();
        return true;
    }
    return false;
}

} // namespace virtualdesk
