#include "platform/virtual/virtualplatform.h"

#include <optional>

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include "platform/virtual/virtualaudio.h"
#include "platform/virtual/virtualdesktopwindows.h"
#include "platform/virtual/virtualdisplays.h"
#include "platform/virtual/virtualfiles.h"
#include "platform/virtual/virtualforeground.h"
#include "platform/virtual/virtualhid.h"
#include "platform/virtual/virtualpresence.h"
#include "platform/virtual/virtualscreencapture.h"
#include "virtualdesk/virtualdesk.h"

namespace platform {

namespace {

using virtualdesk::VirtualDesk;

constexpr std::intptr_t kShellSuccess = 32; // results above it mean that the program was started

class VirtualProcess final : public Process
{
public:
    explicit VirtualProcess(VirtualDesk &desk) : m_desk(desk) {}

    bool isUserAnAdmin() override { return m_desk.process().administrator; }

    QString ownFile() override { return ownProgramFile(); }
    QStringList systemFolders() override { return m_desk.process().systemFolders; }
    QString localDataFolder() override { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }
    bool restrictLibraries() override { return m_desk.process().restrictsLibraries; }

    std::intptr_t shellExecuteRunas(const QString &file, const QString &parameters, const QString &folder) override
    {
        m_desk.process().elevated.push_back({file, {parameters}, folder});
        if (m_desk.process().startsPrograms && m_desk.process().runasResult > kShellSuccess)
            QProcess::startDetached(file, QProcess::splitCommand(parameters), folder);
        return m_desk.process().runasResult;
    }

    NamedMutex createMutex(const QString &name) override { return m_desk.process().createMutex(name); }

    void closeHandle(void *handle) override
    {
        if (handle != nullptr)
            m_desk.process().closeMutex(handle);
    }

    void quit() override
    {
        ++m_desk.process().quits;
        if (m_desk.process().startsPrograms)
            QCoreApplication::exit();
    }

    bool startDetached(const QString &program, const QStringList &arguments, const QString &folder) override
    {
        m_desk.process().started.push_back({program, arguments, folder});
        if (m_desk.process().startsPrograms)
            return QProcess::startDetached(program, arguments, folder);
        return m_desk.process().start();
    }

private:
    VirtualDesk &m_desk;
};

class VirtualStartUp final : public StartUp
{
public:
    explicit VirtualStartUp(VirtualDesk &desk) : m_desk(desk) {}

    std::optional<QString> value(const QString &name) override { return m_desk.process().startUp().value(name); }
    bool setValue(const QString &name, const QString &text) override
    {
        return m_desk.process().startUp().setValue(name, text);
    }
    bool removeValue(const QString &name) override { return m_desk.process().startUp().removeValue(name); }

private:
    VirtualDesk &m_desk;
};

class VirtualNotifications final : public DeviceNotifications
{
public:
    explicit VirtualNotifications(VirtualDesk &desk) : m_desk(desk) {}

    void *registerInterface(WId window, const Guid &interfaceClass) override
    {
        return window == 0 ? nullptr : m_desk.registrations().add(window, interfaceClass);
    }

    void unregister(void *registration) override
    {
        if (registration != nullptr)
            m_desk.registrations().remove(registration);
    }

    void registerSystem(WId window) override { m_desk.registrations().addSystem(window); }
    void unregisterSystem(WId window) override { m_desk.registrations().removeSystem(window); }

private:
    VirtualDesk &m_desk;
};

class VirtualGlobalKeys final : public GlobalKeys
{
public:
    explicit VirtualGlobalKeys(VirtualDesk &desk) : m_desk(desk) {}

    bool registerKey(int id, std::uint32_t modifiers, std::uint32_t virtualKey) override
    {
        return m_desk.hotKeys().add(id, modifiers, virtualKey);
    }

    bool unregisterKey(int id) override { return m_desk.hotKeys().remove(id); }

private:
    VirtualDesk &m_desk;
};

} // namespace

VirtualPlatform::VirtualPlatform(VirtualDesk &desk, Clock &clock)
    : m_desk(desk), m_clock(clock), m_displays(std::make_unique<VirtualDisplays>(desk)),
      m_monitors(std::make_unique<VirtualMonitors>(desk)), m_process(std::make_unique<VirtualProcess>(desk)),
      m_startUp(std::make_unique<VirtualStartUp>(desk)),
      m_deviceNotifications(std::make_unique<VirtualNotifications>(desk)),
      m_globalKeys(std::make_unique<VirtualGlobalKeys>(desk)),
      m_foreground(std::make_unique<VirtualForeground>(desk.applications())),
      m_presence(std::make_unique<VirtualPresence>(desk)),
      m_windows(std::make_unique<VirtualDesktopWindows>(desk.windows())), m_hid(std::make_unique<VirtualHid>(desk)),
      m_audio(std::make_unique<VirtualAudio>(desk.sound())),
      m_screen(std::make_unique<VirtualScreenCapture>(desk.screen())),
      m_files(std::make_unique<VirtualFiles>(desk.fileFaults))
{
}

VirtualPlatform::~VirtualPlatform() = default;

Displays &VirtualPlatform::displays()
{
    return *m_displays;
}

MonitorConfiguration &VirtualPlatform::monitors()
{
    return *m_monitors;
}

Process &VirtualPlatform::process()
{
    return *m_process;
}

StartUp &VirtualPlatform::startUp()
{
    return *m_startUp;
}

DeviceNotifications &VirtualPlatform::deviceNotifications()
{
    return *m_deviceNotifications;
}

GlobalKeys &VirtualPlatform::globalKeys()
{
    return *m_globalKeys;
}

Foreground &VirtualPlatform::foreground()
{
    return *m_foreground;
}

Presence &VirtualPlatform::presence()
{
    return *m_presence;
}

DesktopWindows &VirtualPlatform::windows()
{
    return *m_windows;
}

Hid &VirtualPlatform::hid()
{
    return *m_hid;
}

AudioCapture &VirtualPlatform::audio()
{
    return *m_audio;
}

ScreenCapture &VirtualPlatform::screen()
{
    return *m_screen;
}

Clock &VirtualPlatform::clock()
{
    return m_clock;
}

Files &VirtualPlatform::files()
{
    return *m_files;
}

void VirtualPlatform::mainWindowShown()
{
    m_desk.startEvents();
}

} // namespace platform
