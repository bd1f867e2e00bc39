#include "virtualdesk/simulateddisplays.h"

#include <QGuiApplication>
#include <QScreen>

namespace virtualdesk {

namespace {

constexpr std::uint64_t kAdapterId = 0x10001;
constexpr QSize kPlainScreen(1920, 1080);
constexpr QSize kSecondScreen(2560, 1440);
constexpr int kTaskbar = 48; // pixels at the lower edge of each display
constexpr QLatin1String kMonitorClassText("{e6f07b5f-ee97-4a90-b076-33f57bf4eaa7}");

} // namespace

void SimulatedDisplays::add(std::unique_ptr<SimulatedMonitor> monitor, int display, const QByteArray &edid)
{
    m_seats.push_back({std::move(monitor), display, edid});
}

void SimulatedDisplays::renew()
{
    ++m_generation;
    Q_EMIT changed();
}

std::vector<std::size_t> SimulatedDisplays::pluggedOn(std::size_t display) const
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < m_seats.size(); ++i) {
        if (m_seats[i].monitor->isPlugged() && m_seats[i].display == static_cast<int>(display))
            found.push_back(i);
    }
    return found;
}

std::vector<platform::DisplayPath> SimulatedDisplays::paths() const
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

std::vector<platform::DisplayHandle> SimulatedDisplays::enumerate() const
{
    std::vector<platform::DisplayHandle> handles;
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        if (!pluggedOn(display).empty())
            handles.push_back(reinterpret_cast<void *>(m_generation << 16 | (display + 1)));
    }
    return handles;
}

std::optional<std::size_t> SimulatedDisplays::displayOf(platform::DisplayHandle handle)
{
    const auto token = reinterpret_cast<std::uintptr_t>(handle);
    const std::size_t display = (token & 0xFFFF) - 1;
    if (token >> 16 != m_generation || display >= m_displays.size() || pluggedOn(display).empty()) {
        m_handles.countFault();
        return std::nullopt;
    }
    return display;
}

std::optional<platform::DisplayInfo> SimulatedDisplays::info(platform::DisplayHandle display)
{
    const auto index = displayOf(display);
    if (!index)
        return std::nullopt;
    const QRect bounds = boundsOf(*index);
    return platform::DisplayInfo{bounds, m_displays[*index].deviceName, bounds.adjusted(0, 0, 0, -kTaskbar)};
}

/// What a display is really shown on, as soon as there is a toolkit to ask: the first one, unless it has bounds of its
/// own. Null for any other.
const QScreen *SimulatedDisplays::realScreen(std::size_t display) const
{
    const bool hasToolkit = qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
    return hasToolkit && display == 0 && m_displays[0].bounds.isNull() ? QGuiApplication::primaryScreen() : nullptr;
}

/// In pixels, which the toolkit may count in points.
QRect SimulatedDisplays::boundsOf(std::size_t display) const
{
    if (!m_displays[display].bounds.isNull())
        return m_displays[display].bounds;
    if (display > 0) {
        const QRect before = boundsOf(display - 1);
        return {QPoint(before.right() + 1, before.top()), kSecondScreen};
    }
    const QScreen *real = realScreen(display);
    return real != nullptr ? QRect(real->geometry().topLeft(), real->size() * real->devicePixelRatio())
                           : QRect(QPoint(0, 0), kPlainScreen);
}

std::optional<platform::DisplayDevice> SimulatedDisplays::adapter(std::uint32_t index) const
{
    if (index >= m_displays.size())
        return std::nullopt;
    return platform::DisplayDevice{m_displays[index].deviceName, QStringLiteral("PCI\\VEN_5156&DEV_0001")};
}

std::optional<platform::DisplayDevice> SimulatedDisplays::monitorDevice(const QString &adapterName,
                                                                        std::uint32_t index) const
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
QString SimulatedDisplays::hardwarePath(std::size_t index) const
{
    const MonitorModel &model = m_seats[index].monitor->model();
    return QStringLiteral("DISPLAY\\%1%2\\5&2a6f1c3&0&UID%3")
        .arg(QLatin1String(model.maker))
        .arg(model.product, 4, 16, QLatin1Char('0'))
        .arg(4352 + index);
}

std::optional<platform::RegistryValue> SimulatedDisplays::registryValue(const QString &keyPath,
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

std::vector<platform::Screen> SimulatedDisplays::screens() const
{
    if (m_screens)
        return *m_screens;
    std::vector<platform::Screen> screens;
    for (std::size_t display = 0; display < m_displays.size(); ++display) {
        if (pluggedOn(display).empty())
            continue;
        const QScreen *real = realScreen(display);
        screens.push_back({m_displays[display].deviceName, real != nullptr ? real->geometry() : boundsOf(display)});
    }
    return screens;
}

void SimulatedDisplays::setDisplays(std::vector<DisplaySetup> displays)
{
    m_displays = std::move(displays);
    renew();
}

void SimulatedDisplays::setMonitorDisplay(std::size_t index, int display)
{
    m_seats.at(index).display = display;
    renew();
}

void SimulatedDisplays::setRegistryEdid(std::size_t index, std::optional<QByteArray> edid)
{
    m_seats.at(index).edid = std::move(edid);
}

std::optional<std::vector<std::size_t>> SimulatedDisplays::monitorsOf(platform::DisplayHandle display)
{
    const auto index = displayOf(display);
    if (!index)
        return std::nullopt;
    return pluggedOn(*index);
}

} // namespace virtualdesk
