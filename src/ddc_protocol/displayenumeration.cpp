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
    QString model;
};

const char *const kEdidKey = "SYSTEM\\CurrentControlSet\\Enum\\%1\\Device Parameters";

QByteArray readEdid(QString interfaceName)
{
    if (interfaceName.startsWith(QLatin1String("\\\\?\\")))
        interfaceName.remove(0, 4);
    interfaceName = interfaceName.section(QLatin1String("#{"), 0, 0).replace(QLatin1Char('#'), QLatin1Char('\\'));
    const auto value = platform::desk().displays().localMachineValue(QString::fromLatin1(kEdidKey).arg(interfaceName),
                                                                     QStringLiteral("EDID"));
    return value && value->isBinary ? value->bytes : QByteArray();
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
    static const QRegularExpression separator(QStringLiteral("[;]"));
    const QStringList names =
        monitorNameFromDisplayIndex(match.captured(1).toInt()).split(separator, Qt::SkipEmptyParts);
    if (projectionMode == ProjectionMode::InternalOnly && names.size() >= 2) {
        qDebug() << "ExternalOnly";
        projectionMode = ProjectionMode::ExternalOnly;
    }
    for (const QString &name : names)
        entries.push_back({deviceName, display, name});
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
    return {records.front(), true, {}};
}

void appendMonitor(const EnumerationEntry &entry, int number, const QString &screenName, QByteArrayList &labels)
{
    const QString &name = entry.model.isEmpty() ? screenName : entry.model;
    labels += QStringLiteral("%1. %2").arg(number).arg(name).toUtf8();
    MonitorInfo record = firstPhysicalMonitor(entry.display);
    qDebug().noquote() << "hMonitor " << entry.display << "deviceName " << entry.deviceName << "model " << entry.model
                       << "Monitor.hPhysicalMonitor" << record.handle;
    record.label = QString::fromUtf8(labels.last());
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
                appendMonitor(entry, number, screen.name, labels);
        }
    }
    return labels;
}

QString monitorNameFromDisplayIndex(int n)
{
    platform::Displays &displays = platform::desk().displays();
    const QString target = QStringLiteral("DISPLAY%1").arg(n);
    qDebug().noquote() << "Input Device name" << target;

    QStringList names;
    for (std::uint32_t a = 0; const auto adapter = displays.adapter(a); ++a) {
        for (std::uint32_t m = 0; const auto monitor = displays.monitor(adapter->name, m); ++m) {
            qDebug().noquote() << "Enum Device name" << monitor->name;
            if (!monitor->name.contains(target))
                continue;
            const QByteArray edid = readEdid(monitor->id);
            if (edid.isEmpty()) {
                qDebug() << "EDID read error.";
                return {};
            }
            const QString model = edidModelName(edid);
            qDebug().noquote() << "display0" << model;
            names += model;
        }
    }
    return names.join(QLatin1Char(';'));
}
