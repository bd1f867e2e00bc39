#include "platform/virtual/virtualplatform.h"

#include <optional>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include "platform/systemclock.h"
#include "platform/virtual/rootscreen.h"
#include "platform/virtual/virtualaudio.h"
#include "platform/virtual/virtualfiles.h"
#include "platform/virtual/virtualforeground.h"
#include "platform/virtual/virtualhid.h"
#include "virtualdesk/deskscript.h"
#include "virtualdesk/deskwindow.h"
#include "virtualdesk/requestlog.h"
#include "virtualdesk/virtualdesk.h"
#include "virtualdesk/whereabouts.h"

namespace platform {

namespace {

using virtualdesk::VirtualDesk;

constexpr std::intptr_t kShellSuccess = 32; // results above it mean that the program was started

class VirtualDisplays final : public Displays
{
public:
    explicit VirtualDisplays(VirtualDesk &desk) : m_desk(desk) {}

    std::optional<std::vector<DisplayPath>> activePaths() override
    {
        auto paths = m_desk.displays().paths();
        if (paths.empty()) // the system has always a path while it shows anything
            return std::nullopt;
        return paths;
    }

    void enumerate(const std::function<bool(DisplayHandle)> &visit) override
    {
        const auto displays = m_desk.displays().enumerate();
        for (const DisplayHandle display : displays) {
            if (!visit(display))
                return;
        }
    }

    std::optional<DisplayInfo> info(DisplayHandle display) override { return m_desk.displays().info(display); }
    std::optional<DisplayDevice> adapter(std::uint32_t index) override { return m_desk.displays().adapter(index); }
    std::optional<DisplayDevice> monitor(const QString &adapterName, std::uint32_t index) override
    {
        return m_desk.displays().monitorDevice(adapterName, index);
    }
    std::optional<RegistryValue> localMachineValue(const QString &keyPath, const QString &valueName) override
    {
        return m_desk.displays().registryValue(keyPath, valueName);
    }
    std::vector<Screen> screens() override { return m_desk.displays().screens(); }
    std::optional<WorkArea> workArea() override { return rootWorkArea(); }

private:
    VirtualDesk &m_desk;
};

class VirtualMonitors final : public MonitorConfiguration
{
public:
    explicit VirtualMonitors(VirtualDesk &desk) : m_desk(desk) {}

    std::optional<std::uint32_t> count(DisplayHandle display) override
    {
        const auto monitors = m_desk.displays().monitorsOf(display);
        if (!monitors)
            return std::nullopt;
        return static_cast<std::uint32_t>(monitors->size());
    }

    bool fetch(DisplayHandle display, std::span<PhysicalMonitor> monitors) override
    {
        const auto found = m_desk.displays().monitorsOf(display);
        if (!found || monitors.empty() || monitors.size() > found->size() || !m_desk.displays().isFetchable(display))
            return false;
        for (std::size_t i = 0; i < monitors.size(); ++i) {
            monitors[i] = {};
            monitors[i].handle = m_desk.handles().open((*found)[i]);
            std::u16string_view(u"Generic PnP Monitor").copy(monitors[i].description, 127);
        }
        return true;
    }

    void destroy(std::span<PhysicalMonitor> monitors) override
    {
        for (const PhysicalMonitor &monitor : monitors)
            m_desk.handles().close(monitor.handle);
    }

    VcpReply getFeature(PhysicalMonitorHandle monitor, std::uint8_t code) override
    {
        virtualdesk::SimulatedMonitor *target = m_desk.monitorOfHandle(monitor);
        if (target == nullptr)
            return {false, 0, 0, virtualdesk::kErrorInvalidHandle};
        const virtualdesk::Reply reply = target->read(code);
        if (!reply.ok())
            return {false, 0, 0, reply.error};
        return {true, reply.current, reply.maximum, 0};
    }

    bool setFeature(PhysicalMonitorHandle monitor, std::uint8_t code, std::uint32_t value) override
    {
        virtualdesk::SimulatedMonitor *target = m_desk.monitorOfHandle(monitor);
        return target != nullptr && target->write(code, value).ok();
    }

private:
    VirtualDesk &m_desk;
};

class VirtualProcess final : public Process
{
public:
    explicit VirtualProcess(VirtualDesk &desk) : m_desk(desk) {}

    bool isUserAnAdmin() override { return m_desk.process().administrator; }

    QString ownFile() override
    {
        const QString file = QFile::symLinkTarget(QStringLiteral("/proc/self/exe")); // where there is such a thing
        return file.isEmpty() ? QCoreApplication::applicationFilePath() : file;
    }

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

/// What the process's own desk stands on; a base, so that it is there before the adapters are.
struct OwnDesk
{
    SystemClock programClock;
    SystemClock deskClock; // devices take their time also when the program ends
    VirtualDesk ownDesk{deskClock, virtualdesk::setupFromEnvironment()};
};

class ProcessDesk final : private OwnDesk, public VirtualPlatform
{
public:
    ProcessDesk() : VirtualPlatform(ownDesk, programClock)
    {
        ownDesk.process().startsPrograms = true;
        const QString requestFile = qEnvironmentVariable("QUORVEL_DESK_LOG");
        if (!requestFile.isEmpty())
            m_requestLog.emplace(ownDesk, requestFile);
    }

    void mainWindowShown() override
    {
        VirtualPlatform::mainWindowShown();
        const QString places = qEnvironmentVariable("QUORVEL_DESK_PLACES");
        if (!places.isEmpty())
            new virtualdesk::Whereabouts(places, qApp);
        if (m_window != nullptr || qEnvironmentVariable("QUORVEL_DESK_WINDOW") == QLatin1String("0"))
            return;
        m_window = std::make_unique<virtualdesk::DeskWindow>(ownDesk);
        // The desk outlives the application object, which a widget must not.
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, m_window.get(), [this] { m_window.reset(); });
        m_window->show();
    }

private:
    std::optional<virtualdesk::RequestLog> m_requestLog;
    std::unique_ptr<virtualdesk::DeskWindow> m_window;
};

} // namespace

VirtualPlatform::VirtualPlatform(VirtualDesk &desk, Clock &clock)
    : m_desk(desk), m_clock(clock), m_displays(std::make_unique<VirtualDisplays>(desk)),
      m_monitors(std::make_unique<VirtualMonitors>(desk)), m_process(std::make_unique<VirtualProcess>(desk)),
      m_startUp(std::make_unique<VirtualStartUp>(desk)),
      m_deviceNotifications(std::make_unique<VirtualNotifications>(desk)),
      m_globalKeys(std::make_unique<VirtualGlobalKeys>(desk)),
      m_foreground(std::make_unique<VirtualForeground>(desk.applications())), m_hid(std::make_unique<VirtualHid>(desk)),
      m_audio(std::make_unique<VirtualAudio>(desk.sound())), m_files(std::make_unique<VirtualFiles>(desk.fileFaults))
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

Hid &VirtualPlatform::hid()
{
    return *m_hid;
}

AudioCapture &VirtualPlatform::audio()
{
    return *m_audio;
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

std::unique_ptr<Desk> createVirtualDesk()
{
    return std::make_unique<ProcessDesk>();
}

} // namespace platform
