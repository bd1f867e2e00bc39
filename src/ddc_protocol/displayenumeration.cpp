#include "ddc_protocol/displayenumeration.h"

#include <QDebug>
#include <QRegularExpression>

#include "ddc_protocol/edid.h"
#include "ddc_protocol/transport.h"
#include "platform/desk.h"

std::vector<MonitorInfo> monitorList;
std::atomic<std::uint8_t> currentMonitorIndex = 0;
ProjectionMode projectionMode = ProjectionMode::Unknown;

namespace {

/// One monitor that the enumeration met.
struct EnumerationEntry
{
    QString deviceName;
    platform::DisplayHandle display = nullptr;
    MonitorIdentity identity;
    EdidFacts facts;
};

const char *const kEdidKey = "SYSTEM\\CurrentControlSet\\Enum\\%1\\Device Parameters";

/// The path of a monitor among the system's devices, from the name of its device interface.
QString devicePath(QString interfaceName)
{
    if (interfaceName.startsWith(QLatin1String("\\\\?\\")))
        interfaceName.remove(0, 4);
    return interfaceName.section(QLatin1String("#{"), 0, 0).replace(QLatin1Char('#'), QLatin1Char('\\'));
}

QByteArray readEdid(const QString &path)
{
    const auto value =
        platform::desk().displays().localMachineValue(QString::fromLatin1(kEdidKey).arg(path), QStringLiteral("EDID"));
    return value && value->isBinary ? value->bytes : QByteArray();
}

constexpr QLatin1Char kSeparator(';'); // of names; in a name as well, which then counts as several

/// The monitors on display number n; none when any of them has no readable EDID.
std::vector<EnumerationEntry> monitorsOnDisplay(int n)
{
    platform::Displays &displays = platform::desk().displays();
    const QString target = QStringLiteral("DISPLAY%1").arg(n);
    qDebug().noquote() << "Input Device name" << target;

    std::vector<EnumerationEntry> found;
    for (std::uint32_t a = 0; const auto adapter = displays.adapter(a); ++a) {
        for (std::uint32_t m = 0; const auto monitor = displays.monitor(adapter->name, m); ++m) {
            qDebug().noquote() << "Enum Device name" << monitor->name;
            if (!monitor->name.contains(target))
                continue;
            const QString path = devicePath(monitor->id);
            const QByteArray edid = readEdid(path);
            if (edid.isEmpty()) {
                qDebug() << "EDID read error.";
                return {};
            }
            const EdidFacts facts = edidFacts(edid);
            const MonitorIdentity identity{edidModelName(edid), facts.serial, path.section(QLatin1Char('\\'), -1)};
            qDebug().noquote() << "display0" << identity.name;
            found.push_back({{}, nullptr, identity, facts});
        }
    }
    return found;
}

void getMonitorInfoList(platform::DisplayHandle display, std::vector<EnumerationEntry> &entries)
{
    const auto info = platform::desk().displays().info(display);
    const QString deviceName = info ? info->deviceName : QString();
    qDebug().noquote() << "callback name" << deviceName;

    static const QRegularExpression pattern(QStringLiteral("DISPLAY(\\d+)"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(deviceName);
    if (!match.hasMatch())
        return;
    const std::size_t before = entries.size();
    for (EnumerationEntry entry : monitorsOnDisplay(match.captured(1).toInt())) {
        entry.deviceName = deviceName;
        entry.display = display;
        const QStringList names = entry.identity.name.split(kSeparator, Qt::SkipEmptyParts);
        for (const QString &name : names) {
            entry.identity.name = name;
            entries.push_back(entry);
        }
    }
    if (projectionMode == ProjectionMode::InternalOnly && entries.size() - before >= 2) {
        qDebug() << "ExternalOnly";
        projectionMode = ProjectionMode::ExternalOnly;
    }
}

/// The first physical monitor of a display; what else the platform handed out is given back at once.
MonitorInfo firstPhysicalMonitor(platform::DisplayHandle display)
{
    platform::MonitorConfiguration &monitors = platform::desk().monitors();
    const std::uint32_t count = monitors.count(display).value_or(0);
    std::vector<platform::PhysicalMonitor> records(count);
    if (count == 0 || !monitors.fetch(display, records))
        return {};
    monitors.destroy(std::span(records).subspan(1));
    return {records.front(), true, {}, {}, {}};
}

void appendMonitor(const EnumerationEntry &entry, int number, const platform::Screen &screen, const QRect &bounds,
                   QByteArrayList &labels)
{
    const QString &model = entry.identity.name;
    const QString &name = model.isEmpty() ? screen.name : model;
    labels += QStringLiteral("%1. %2").arg(number).arg(name).toUtf8();
    MonitorInfo record = firstPhysicalMonitor(entry.display);
    record.identity = entry.identity;
    record.facts = entry.facts;
    record.bounds = bounds;
    qDebug().noquote() << "hMonitor " << entry.display << "deviceName " << entry.deviceName << "model " << model
                       << "Monitor.hPhysicalMonitor" << record.handle;
    monitorList.push_back(record);
}

} // namespace

ProjectionMode currentProjectionMode()
{
    const auto paths = platform::desk().displays().activePaths();
    if (!paths)
        return ProjectionMode::Unknown;
    if (paths->size() == 1) {
        projectionMode = ProjectionMode::InternalOnly;
        qDebug() << "InternalOnly";
    } else if (paths->size() == 2 && paths->front() == paths->back()) {
        projectionMode = ProjectionMode::Clone;
        qDebug() << "Clone";
    } else {
        projectionMode = ProjectionMode::Extend;
    }
    return projectionMode;
}

QByteArrayList findDevices()
{
    const auto lock = lockTransport();
    platform::Displays &displays = platform::desk().displays();
    for (MonitorInfo &monitor : monitorList) {
        if (monitor.fetched)
            platform::desk().monitors().destroy(std::span(static_cast<platform::PhysicalMonitor *>(&monitor), 1));
    }
    monitorList.clear();

    std::vector<EnumerationEntry> entries;
    displays.enumerate([&entries](platform::DisplayHandle display) {
        getMonitorInfoList(display, entries);
        return true;
    });
    qDebug() << "monitor counts: " << entries.size();

    QByteArrayList labels;
    for (const platform::Screen &screen : displays.screens()) {
        int number = 0; // the numbering restarts for every screen
        for (const EnumerationEntry &entry : entries) {
            ++number;
            const auto info = displays.info(entry.display);
            if (info && info->bounds.contains(screen.geometry.center()))
                appendMonitor(entry, number, screen, info->bounds, labels);
        }
    }
    return labels;
}

QString monitorNameFromDisplayIndex(int n)
{
    QStringList names;
    for (const EnumerationEntry &entry : monitorsOnDisplay(n))
        names += entry.identity.name;
    return names.join(kSeparator);
}
