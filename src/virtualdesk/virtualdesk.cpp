#include "virtualdesk/virtualdesk.h"

#include <algorithm>

#include <QCryptographicHash>
#include <QDir>
#include <QGuiApplication>
#include <QLockFile>
#include <QScreen>
#include <QThread>

namespace virtualdesk {

namespace {

constexpr std::uint64_t kAdapterId = 0x10001;
constexpr QSize kPlainScreen(1920, 1080);
constexpr QSize kSecondScreen(2560, 1440);
constexpr QLatin1String kMonitorClassText("{e6f07b5f-ee97-4a90-b076-33f57bf4eaa7}");

} // namespace

/// A name that this process holds, or only knows to be held.
struct VirtualDesk::OpenMutex
{
    explicit OpenMutex(const QString &path) : lock(path) { lock.setStaleLockTime(0); }
    QLockFile lock;
};

VirtualDesk::VirtualDesk(platform::Clock &clock, const DeskSetup &setup)
    : administrator(setup.administrator), runasResult(setup.runasResult), m_clock(clock), m_displays(setup.displays),
      m_events(setup.events), m_topology(setup.topology), m_accessory(clock), m_mutexFolder(QDir::tempPath()),
      m_startUp(m_mutexFolder), m_sound(clock, setup.sound)
{
    for (const AudioFault &fault : setup.audioFaults)
        m_sound.fail(fault);
    m_startUp.writable = setup.startUpWritable;
    for (const MonitorSetup &each : setup.monitors) {
        auto monitor = std::make_unique<SimulatedMonitor>(*each.model, clock);
        monitor->setLatency(setup.readLatency, setup.writeLatency);
        monitor->setPlugged(each.plugged);
        for (const auto &[code, value] : each.values)
            monitor->setValue(code, value);
        if (each.replay)
            monitor->replay(*each.replay);
        m_seats.push_back({std::move(monitor), each.display, each.edid.value_or(buildEdid(*each.model))});
        for (const MonitorEvent &fault : each.faults)
            apply(m_seats.size() - 1, fault);
    }
    m_accessory.setForm(setup.accessory.form);
    m_accessory.setPlugged(setup.accessory.plugged);
    m_accessory.refuseWrites(setup.accessory.refusedWrites);
    m_accessory.failOpens(setup.accessory.failedOpens);
    m_accessory.unplugAtWrite(setup.accessory.unplugAtWrite);
    m_accessory.onPlugged([this](bool plugged) { accessoryPlugged(plugged); });
}

VirtualDesk::~VirtualDesk() = default;

void VirtualDesk::setMutexFolder(const QString &folder)
{
    m_mutexFolder = folder;
    m_startUp.setFolder(folder);
}

void VirtualDesk::plug(std::size_t index)
{
    setPlugged(index, true);
}

void VirtualDesk::unplug(std::size_t index)
{
    setPlugged(index, false);
}

void VirtualDesk::setPlugged(std::size_t index, bool plugged)
{
    if (monitor(index).isPlugged() == plugged)
        return;
    monitor(index).setPlugged(plugged);
    const auto announce = [this, plugged] {
        displaysChanged();
        deliverDeviceMessage(plugged ? platform::kDeviceArrival : platform::kDeviceRemoveComplete);
    };
    announceOnOwnThread(announce);
}

void VirtualDesk::accessoryPlugged(bool plugged)
{
    announceOnOwnThread([this, plugged] {
        deliverDeviceMessage(plugged ? platform::kDeviceArrival : platform::kDeviceRemoveComplete, kHidInterfaceClass);
    });
}

/// Pulled out in the middle of a worker's request: the system tells the windows on their own thread.
void VirtualDesk::announceOnOwnThread(const std::function<void()> &announce)
{
    if (QThread::currentThread() == thread())
        announce();
    else
        QMetaObject::invokeMethod(this, announce, Qt::QueuedConnection);
}

void VirtualDesk::displaysChanged()
{
    ++m_displayGeneration;
    Q_EMIT monitorsChanged();
}

std::vector<std::size_t> VirtualDesk::pluggedOn(std::size_t display) const
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < m_seats.size(); ++i) {
        if (m_seats[i].monitor->isPlugged() && m_seats[i].display == static_cast<int>(display))
            found.push_back(i);
    }
    return found;
}

std::vector<platform::DisplayPath> VirtualDesk::paths() const
{
    if (m_paths)
        return *m_paths;
    std::vector<platform::DisplayPath> paths;
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        const auto source = m_topology == Topology::Clone ? 0u : static_cast<std::uint32_t>(display);
        paths.insert(paths.end(), pluggedOn(display).size(), {kAdapterId, source});
    }
    if (m_topology == Topology::Single && paths.size() > 1)
        paths.resize(1);
    return paths;
}

std::vector<platform::DisplayHandle> VirtualDesk::displays() const
{
    std::vector<platform::DisplayHandle> handles;
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        if (!pluggedOn(display).empty())
            handles.push_back(reinterpret_cast<void *>(m_displayGeneration << 16 | (display + 1)));
    }
    return handles;
}

std::optional<std::size_t> VirtualDesk::displayOf(platform::DisplayHandle handle)
{
    const auto token = reinterpret_cast<std::uintptr_t>(handle);
    const std::size_t display = (token & 0xFFFF) - 1;
    if (token >> 16 != m_displayGeneration || display >= m_displays.size() || pluggedOn(display).empty()) {
        countHandleFault();
        return std::nullopt;
    }
    return display;
}

std::optional<platform::DisplayInfo> VirtualDesk::displayInfo(platform::DisplayHandle display)
{
    const auto index = displayOf(display);
    if (!index)
        return std::nullopt;
    return platform::DisplayInfo{boundsOf(*index), m_displays[*index].deviceName};
}

/// The first display is what the program is really shown on, as soon as there is a toolkit to ask.
QRect VirtualDesk::boundsOf(std::size_t display) const
{
    if (!m_displays[display].bounds.isNull())
        return m_displays[display].bounds;
    if (display > 0) {
        const QRect before = boundsOf(display - 1);
        return {QPoint(before.right() + 1, before.top()), kSecondScreen};
    }
    const bool hasToolkit = qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
    const QScreen *primary = hasToolkit ? QGuiApplication::primaryScreen() : nullptr;
    return primary != nullptr ? primary->geometry() : QRect(QPoint(0, 0), kPlainScreen);
}

std::optional<platform::DisplayDevice> VirtualDesk::adapter(std::uint32_t index) const
{
    if (index >= m_displays.size())
        return std::nullopt;
    return platform::DisplayDevice{m_displays[index].deviceName, QStringLiteral("PCI\\VEN_5156&DEV_0001")};
}

std::optional<platform::DisplayDevice> VirtualDesk::monitorDevice(const QString &adapterName, std::uint32_t index) const
{
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        const auto monitors = pluggedOn(display);
        if (m_displays[display].deviceName != adapterName || index >= monitors.size())
            continue;
        QString id = hardwarePath(monitors[index]);
        id.replace(QLatin1Char('\\'), QLatin1Char('#'));
        return platform::DisplayDevice{QStringLiteral("%1\\Monitor%2").arg(adapterName).arg(index),
                                       QStringLiteral("\\\\?\\%1#%2").arg(id, kMonitorClassText)};
    }
    return std::nullopt;
}

/// Where the registry keeps a monitor, below the key of all devices.
QString VirtualDesk::hardwarePath(std::size_t index) const
{
    const MonitorModel &model = m_seats[index].monitor->model();
    return QStringLiteral("DISPLAY\\%1%2\\5&2a6f1c3&0&UID%3")
        .arg(QLatin1String(model.maker))
        .arg(model.product, 4, 16, QLatin1Char('0'))
        .arg(4352 + index);
}

std::optional<platform::RegistryValue> VirtualDesk::registryValue(const QString &keyPath,
                                                                  const QString &valueName) const
{
    if (valueName.compare(QLatin1String("EDID"), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    for (std::size_t i = 0; i < m_seats.size(); ++i) {
        const QString path =
            QStringLiteral("SYSTEM\\CurrentControlSet\\Enum\\%1\\Device Parameters").arg(hardwarePath(i));
        if (m_seats[i].edid && keyPath.compare(path, Qt::CaseInsensitive) == 0)
            return platform::RegistryValue{true, *m_seats[i].edid};
    }
    return std::nullopt;
}

std::vector<platform::Screen> VirtualDesk::screens() const
{
    if (m_screens)
        return *m_screens;
    std::vector<platform::Screen> screens;
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        if (!pluggedOn(display).empty())
            screens.push_back({m_displays[display].deviceName, boundsOf(display)});
    }
    return screens;
}

void VirtualDesk::setDisplays(std::vector<DisplaySetup> displays)
{
    m_displays = std::move(displays);
    displaysChanged();
}

void VirtualDesk::setMonitorDisplay(std::size_t index, int display)
{
    m_seats.at(index).display = display;
    displaysChanged();
}

void VirtualDesk::setRegistryEdid(std::size_t index, std::optional<QByteArray> edid)
{
    m_seats.at(index).edid = std::move(edid);
}

std::optional<std::vector<std::size_t>> VirtualDesk::monitorsOf(platform::DisplayHandle display)
{
    const auto index = displayOf(display);
    if (!index)
        return std::nullopt;
    return pluggedOn(*index);
}

void *VirtualDesk::openHandle(std::size_t index)
{
    const std::lock_guard lock(m_handleMutex);
    auto *handle = reinterpret_cast<void *>(m_nextHandle++);
    m_handles.emplace(handle, index);
    return handle;
}

void VirtualDesk::closeHandle(void *handle)
{
    const std::lock_guard lock(m_handleMutex);
    if (m_handles.erase(handle) == 0)
        ++m_handleFaults;
}

SimulatedMonitor *VirtualDesk::monitorOfHandle(void *handle)
{
    const std::lock_guard lock(m_handleMutex);
    const auto found = m_handles.find(handle);
    if (found == m_handles.end()) {
        ++m_handleFaults;
        return nullptr;
    }
    return m_seats[found->second].monitor.get();
}

int VirtualDesk::handlesOpen() const
{
    const std::lock_guard lock(m_handleMutex);
    return static_cast<int>(m_handles.size());
}

int VirtualDesk::handleFaults() const
{
    const std::lock_guard lock(m_handleMutex);
    return m_handleFaults;
}

void VirtualDesk::countHandleFault()
{
    const std::lock_guard lock(m_handleMutex);
    ++m_handleFaults;
}

platform::NamedMutex VirtualDesk::createMutex(const QString &name)
{
    // Names may hold what file names may not.
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    const QString file = QStringLiteral("quorvel-desk-%1.lock").arg(QLatin1String(digest));
    auto mutex = std::make_unique<OpenMutex>(QDir(m_mutexFolder).filePath(file));
    std::uint32_t error = 0;
    if (!mutex->lock.tryLock(0)) {
        if (mutex->lock.error() != QLockFile::LockFailedError)
            return {nullptr, platform::kErrorAccessDenied};
        error = platform::kErrorAlreadyExists;
    }
    void *handle = mutex.get();
    m_mutexes.push_back(std::move(mutex));
    return {handle, error};
}

void VirtualDesk::closeMutex(void *handle)
{
    const auto erased = std::erase_if(m_mutexes, [handle](const auto &mutex) { return mutex.get() == handle; });
    if (erased == 0 && handle != nullptr)
        countHandleFault();
}

bool VirtualDesk::endSession()
{
    qintptr agreed = 1; // who does not answer agrees
    platform::NativeMessage message;
    message.message = platform::kMessageQueryEndSession;
    deliverNativeMessage(message, &agreed);
    message.message = platform::kMessageEndSession;
    message.wParam = agreed != 0 ? 1 : 0;
    deliverNativeMessage(message);
    return agreed != 0;
}

void VirtualDesk::deliverDeviceMessage(std::uint64_t event, const platform::Guid &interfaceClass)
{
    m_registrations.broadcast(event, interfaceClass);
}

} // namespace virtualdesk
