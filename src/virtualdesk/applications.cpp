#include "virtualdesk/applications.h"

#include <utility>

#include "platform/foreground.h"

namespace virtualdesk {

namespace {

using Shape = ApplicationWindow::Shape;

constexpr std::size_t kLongestPath = 259; // without its end

// What stands for a window and for an open process: the program's place, from 1, behind a mark.
constexpr std::uintptr_t kWindow = 0x20000;
constexpr std::uintptr_t kProcess = 0x30000;
constexpr std::uint32_t kProcessId = 0x10000000; // beyond those of this machine

void *token(std::uintptr_t mark, std::size_t index)
{
    return reinterpret_cast<void *>(mark + index + 1);
}

std::uintptr_t placeOf(std::uintptr_t mark, const void *handle)
{
    return reinterpret_cast<std::uintptr_t>(handle) - mark;
}

} // namespace

Applications::Applications()
    : m_list{{QStringLiteral("C:\\Program Files\\Surf\\surf.exe"), false, true, {{112, 80, 916, 608}, 8}},
             {QStringLiteral("D:\\Games\\Night Race\\NightRace.exe"), false, true, {{}, 0, Shape::FullScreen}},
             {QStringLiteral("C:\\Program Files\\Movie Time\\movietime.exe"),
              false,
              true,
              {{300, 200, 640, 400}, 0, Shape::Normal, false}},
             {QStringLiteral("C:\\Windows\\System32\\Taskmgr.exe"),
              true,
              true,
              {{500, 120, 616, 508}, 8, Shape::Normal, true, false, true}}}
{
}

void Applications::setList(std::vector<Application> list)
{
    m_list = std::move(list);
    m_front.reset();
}

void Applications::bringToFront(std::size_t index)
{
    m_front = index;
    if (platform::kEventForeground >= m_first && platform::kEventForeground <= m_last)
        raiseEvent(platform::kEventForeground, windowOf(index));
}

void *Applications::windowOf(std::size_t index)
{
    return token(kWindow, index);
}

Application *Applications::ofWindow(void *window)
{
    return const_cast<Application *>(applicationOf(placeOf(kWindow, window)));
}

void Applications::raiseEvent(std::uint32_t event, void *window) const
{
    if (m_hook != nullptr)
        m_hook(event, window);
}

void *Applications::setHook(std::uint32_t first, std::uint32_t last, Hook hook)
{
    m_first = first;
    m_last = last;
    m_hook = hook;
    return this;
}

void Applications::unhook(void *hook)
{
    if (hook == this)
        m_hook = nullptr;
}

const Application *Applications::applicationOf(std::uintptr_t token) const
{
    return token >= 1 && token <= m_list.size() ? &m_list[token - 1] : nullptr;
}

std::uint32_t Applications::processOf(void *window) const
{
    const std::uintptr_t place = placeOf(kWindow, window);
    const Application *application = applicationOf(place);
    return application != nullptr && application->hasProcess ? kProcessId + static_cast<std::uint32_t>(place) : 0;
}

void *Applications::openProcess(std::uint32_t processId)
{
    const std::size_t place = processId - kProcessId;
    const Application *application = applicationOf(place);
    if (application == nullptr || application->isProtected)
        return nullptr;
    ++m_processesOpen;
    return token(kProcess, place - 1);
}

void Applications::closeProcess(void *process)
{
    if (applicationOf(placeOf(kProcess, process)) != nullptr)
        --m_processesOpen;
}

std::optional<QString> Applications::imageName(void *process) const
{
    const Application *application = applicationOf(placeOf(kProcess, process));
    if (application == nullptr || static_cast<std::size_t>(application->path.size()) > kLongestPath)
        return std::nullopt;
    return application->path;
}

QString Applications::windowText(void *window)
{
    ++m_titlesRead;
    const Application *application = applicationOf(placeOf(kWindow, window));
    return application != nullptr ? application->path.section(QLatin1Char('\\'), -1) : QString();
}

} // namespace virtualdesk
