#include "following/foregroundwatch.h"

#include <optional>

#include <QDebug>
#include <QString>

#include "platform/desk.h"

namespace {

ForegroundWatch *s_watch = nullptr; // the system's callback brings no pointer of ours

/// A process that is open as long as this lives.
struct OpenProcess
{
    OpenProcess(platform::Foreground &system, std::uint32_t processId)
        : foreground(system), handle(system.openProcess(platform::kProcessQueryAndRead, processId))
    {
    }
    ~OpenProcess()
    {
        if (handle)
            foreground.closeProcess(handle);
    }
    Q_DISABLE_COPY_MOVE(OpenProcess)

    platform::Foreground &foreground;
    void *handle;
};

/// The path of the program that a window belongs to, empty when it is too long for the system to tell; nothing when
/// the process cannot be told or opened.
std::optional<QString> programOf(platform::WindowHandle window)
{
    platform::Foreground &foreground = platform::desk().foreground();
    const std::uint32_t processId = foreground.processOf(window);
    if (processId == 0)
        return std::nullopt;
    const OpenProcess process(foreground, processId);
    if (!process.handle) // protected, or of higher integrity
        return std::nullopt;
    QString path = foreground.imageName(process.handle).value_or(QString());
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace

ForegroundWatch::ForegroundWatch(QObject *parent) : QObject(parent)
{
    s_watch = this;
    m_hook = platform::desk().foreground().setWinEventHook(platform::kEventForeground, platform::kEventForeground,
                                                           &ForegroundWatch::windowEvent);
    if (!m_hook)
        qWarning() << "The system does not tell which program is in front.";
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
    Q_EMIT s_watch->windowInFront(window);
    const auto path = programOf(window);
    if (!path)
        return;
    Q_EMIT s_watch->programInFront(*path);
    platform::desk().foreground().windowText(window); // the title is read and not used, on purpose
}
