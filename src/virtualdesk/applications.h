#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QRect>
#include <QString>

namespace virtualdesk {

/// The window of a program.
struct ApplicationWindow
{
    enum class Shape { Normal, Maximised, Minimised, FullScreen, Hidden }; ///< hidden: only in the tray

    QRect rect = {80, 60, 800, 560}; ///< in pixels of the desktop, the frame that cannot be seen included
    int frame = 0;                   ///< pixels of it at the left, at the right and below
    Shape shape = Shape::Normal;
    bool isSizable = true;
    bool isHung = false;
    bool hasMoreRights = false; ///< it cannot be moved from here
    QSize least = {};           ///< the smallest size that it takes
    QString className = QStringLiteral("Window");
};

/// A program that runs on the desk.
struct Application
{
    QString path;             ///< as the system names it, with backslashes
    bool isProtected = false; ///< its process cannot be opened
    bool hasProcess = true;   ///< off: its window is gone by the time somebody asks
    ApplicationWindow window = {};
};

/// The other programs of the desk, one of which is in front, and who wants to hear when that changes. Interface thread
/// only.
class Applications
{
public:
    using Hook = void (*)(std::uint32_t event, void *window);

    /// A browser, a game, a film player and a protected program.
    Applications();

    const std::vector<Application> &list() const { return m_list; }
    void setList(std::vector<Application> list);

    /// Brings a program to the front, also one that is there already: whoever hooked the event is called.
    void bringToFront(std::size_t index);

    /// The place in the list of the one in front; nothing until one was brought there.
    std::optional<std::size_t> front() const { return m_front; }
    /// The program that the desk is for came to the front.
    void leaveFront() { m_front.reset(); }
    /// What stands for the window of a program, and the program of such a window; null for any other.
    static void *windowOf(std::size_t index);
    Application *ofWindow(void *window);

    /// An event of any kind and window, as the system might send it.
    void raiseEvent(std::uint32_t event, void *window) const;

    // What the platform asks for.

    void *setHook(std::uint32_t first, std::uint32_t last, Hook hook);
    void unhook(void *hook);
    bool isHooked() const { return m_hook != nullptr; }
    std::uint32_t processOf(void *window) const;
    void *openProcess(std::uint32_t processId);
    void closeProcess(void *process);
    /// Nothing for a path that does not fit into 260 characters.
    std::optional<QString> imageName(void *process) const;
    QString windowText(void *window);
    /// Processes that were opened and not closed.
    int processesOpen() const { return m_processesOpen; }
    /// How often a window's title was asked for.
    int titlesRead() const { return m_titlesRead; }

private:
    const Application *applicationOf(std::uintptr_t token) const;

    std::vector<Application> m_list;
    std::uint32_t m_first = 0;
    std::uint32_t m_last = 0;
    Hook m_hook = nullptr;
    int m_processesOpen = 0;
    int m_titlesRead = 0;
    std::optional<std::size_t> m_front;
};

} // namespace virtualdesk
