#include "following/foregroundwatch.h"

#include <optional>

#include <QString>

#include "platform/desk.h"

namespace {

ForegroundWatch *s_watch = nullptr; // the system's callback brings no pointer of ours

/// The path of the program that a window belongs to; nothing when that cannot be told.
std::optional<QString> programOf(platform::WindowHandle window)
{
    platform::Foreground &foreground = platform::desk().foreground();
    const std::uint32_t processId = foreground.processOf(window);
    if (processId == 0)
        return std::nullopt;
    void *process = foreground.openProcess(platform::kProcessQueryAndRead, processId);
    if (!process) // protected, or of higher integrity
        return std::nullopt;
    std::optional<QString> path = foreground.imageName(process);
    foreground.closeProcess(process);
    if (path)
        path->replace(QLatin1Char('\\'), QLatin1Char('/'));
    return path;
}

} // namespace

ForegroundWatch::ForegroundWatch(QObject *parent) : QObject(parent)
{
    s_watch = this;
    m_hook = platform::desk().foreground().setWinEventHook(platform::kEventForeground, platform::kEventForeground,
                                                           &ForegroundWatch::windowEvent);
}

ForegroundWatch::~ForegroundWatch()
{
    platform::desk().foreground().unhookWinEvent(m_hook);
    s_watch = nullptr;
}

void ForegroundWatch::windowEvent(std::uint32_t event, void *window)
{
    if (!s_watch || event != platform::kEventForeground || !window)
        return;
    if (const auto path = programOf(window))
        Q_EMIT s_watch->programInFront(*path);
}
