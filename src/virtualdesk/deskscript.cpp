#include "virtualdesk/deskscript.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include "virtualdesk/soundscript.h"

namespace virtualdesk {

namespace {

/// Reads values and keeps the first fault; everything after a fault is harmless and thrown away.
class Reader
{
public:
    QString error;

    void fail(const QString &text)
    {
        if (error.isEmpty())
            error = text;
    }

    int number(const QJsonObject &object, const char *key, int fallback, int low, int high)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            return fallback;
        bool ok = value.isDouble();
        int result = value.toInt(low - 1);
        if (value.isString()) // hexadecimal, as codes are usually written
            result = value.toString().toInt(&ok, 0);
        if (!ok || result < low || result > high)
            fail(QStringLiteral("\"%1\" must be a number from %2 to %3").arg(QLatin1String(key)).arg(low).arg(high));
        return result;
    }

    std::chrono::milliseconds wait(const QJsonObject &object, const char *key)
    {
        return std::chrono::milliseconds(number(object, key, 0, 0, 600000));
    }

    QJsonArray list(const QJsonObject &object, const char *key)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (!value.isUndefined() && !value.isArray())
            fail(QStringLiteral("\"%1\" must be a list").arg(QLatin1String(key)));
        return value.toArray();
    }
};

void readLatency(Reader &reader, const QJsonValue &value, std::chrono::milliseconds &read,
                 std::chrono::milliseconds &write)
{
    if (value.isUndefined() || value == QLatin1String("none"))
        return;
    if (value == QLatin1String("realistic")) {
        read = kRealisticRead;
        write = kRealisticWrite;
    } else if (value.isObject()) {
        read = reader.wait(value.toObject(), "read_ms");
        write = reader.wait(value.toObject(), "write_ms");
    } else {
        reader.fail(QStringLiteral("\"latency\" must be \"realistic\", \"none\" or {\"read_ms\", \"write_ms\"}"));
    }
}

MonitorEvent readEvent(Reader &reader, const QJsonObject &object)
{
    const QString name = object.value(QLatin1String("event")).toString();
    MonitorEvent event;
    event.fault = findFault(name);
    if (event.fault == nullptr) {
        reader.fail(QStringLiteral("unknown \"event\": \"%1\"").arg(name));
        return event;
    }
    const bool always = object.value(QLatin1String("times")) == QLatin1String("always");
    event.times = always ? kForEver : reader.number(object, "times", event.fault->times, kForEver, 1000000);
    event.code = reader.number(object, "code", kAnyCommand, 0, 255);
    if (event.fault->code == FaultCode::Needed && event.code == kAnyCommand)
        reader.fail(QStringLiteral("\"%1\" needs a \"code\"").arg(name));
    event.wait = reader.wait(object, "ms");
    event.read = reader.wait(object, "read_ms");
    event.write = reader.wait(object, "write_ms");
    return event;
}

QByteArray randomBytes(int length)
{
    // The same bytes at every run, so that what they lead to can be seen again.
    QRandomGenerator generator(static_cast<quint32>(length));
    QByteArray bytes(length, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}

std::optional<QByteArray> readEdid(Reader &reader, const QJsonValue &value)
{
    if (value.isUndefined())
        return std::nullopt;
    if (value.isObject())
        return randomBytes(reader.number(value.toObject(), "random", 0, 0, 65536));
    QByteArray hex = value.toString().toLatin1();
    hex.replace(' ', "");
    const QByteArray bytes = QByteArray::fromHex(hex);
    if (!value.isString() || bytes.size() * 2 != hex.size())
        reader.fail(QStringLiteral("\"edid\" must be hexadecimal bytes or {\"random\": length}"));
    return bytes;
}

void readValues(Reader &reader, const QJsonValue &value, MonitorSetup &monitor)
{
    const QJsonObject values = value.toObject();
    for (auto it = values.begin(); it != values.end(); ++it) {
        bool ok = false;
        const int code = it.key().toInt(&ok, 0);
        const int number = it.value().toInt(-1);
        if (!ok || code < 0 || code > 255 || number < 0 || number > 0xFFFF)
            reader.fail(QStringLiteral("\"values\" must pair codes with numbers, but has \"%1\"").arg(it.key()));
        monitor.values.emplace_back(static_cast<std::uint8_t>(code), static_cast<std::uint16_t>(number));
    }
}

std::optional<Replay> readReplay(Reader &reader, const QJsonObject &object)
{
    if (!object.contains(QLatin1String("replay")))
        return {};
    QFile file(object.value(QLatin1String("replay")).toString());
    if (!file.open(QIODevice::ReadOnly)) {
        reader.fail(QStringLiteral("\"replay\" cannot be read: %1").arg(file.errorString()));
        return {};
    }
    QString error;
    auto replay = parseRecording(file.readAll(), reader.number(object, "replay_monitor", 0, 0, 1000), error);
    if (!replay)
        reader.fail(QStringLiteral("\"replay\": %1").arg(error));
    return replay;
}

MonitorSetup readMonitor(Reader &reader, const QJsonObject &object, int displays)
{
    MonitorSetup monitor;
    const QString model = object.value(QLatin1String("model")).toString();
    monitor.model = findModel(model);
    if (monitor.model == nullptr)
        reader.fail(QStringLiteral("unknown \"model\": \"%1\"").arg(model));
    monitor.display = reader.number(object, "display", 0, 0, displays - 1);
    monitor.plugged = object.value(QLatin1String("plugged")).toBool(true);
    monitor.edid = readEdid(reader, object.value(QLatin1String("edid")));
    readValues(reader, object.value(QLatin1String("values")), monitor);
    monitor.replay = readReplay(reader, object);
    const QJsonArray faults = reader.list(object, "faults");
    for (const QJsonValue &fault : faults)
        monitor.faults.push_back(readEvent(reader, fault.toObject()));
    if (object.contains(QLatin1String("latency"))) {
        MonitorEvent latency;
        latency.fault = findFault(QStringLiteral("latency"));
        readLatency(reader, object.value(QLatin1String("latency")), latency.read, latency.write);
        monitor.faults.push_back(latency);
    }
    return monitor;
}

DisplaySetup readDisplay(Reader &reader, const QJsonObject &object, std::size_t index)
{
    DisplaySetup display;
    display.deviceName =
        object.value(QLatin1String("name")).toString(QStringLiteral("\\\\.\\DISPLAY%1").arg(index + 1));
    const QJsonArray bounds = reader.list(object, "bounds");
    if (bounds.size() == 4)
        display.bounds = QRect(bounds[0].toInt(), bounds[1].toInt(), bounds[2].toInt(), bounds[3].toInt());
    else if (!bounds.isEmpty())
        reader.fail(QStringLiteral("\"bounds\" must be [x, y, width, height]"));
    return display;
}

int readTimes(Reader &reader, const QJsonObject &object)
{
    const bool always = object.value(QLatin1String("times")) == QLatin1String("always");
    return always ? kForEver : reader.number(object, "times", 1, kForEver, 1000000);
}

AccessorySetup readAccessory(Reader &reader, const QJsonObject &object)
{
    AccessorySetup accessory;
    accessory.plugged = object.value(QLatin1String("plugged")).toBool(true);
    accessory.form = reader.number(object, "form", 0, 0, 1);
    const QJsonArray faults = reader.list(object, "faults");
    for (const QJsonValue &value : faults) {
        const QJsonObject fault = value.toObject();
        const QString name = fault.value(QLatin1String("event")).toString();
        if (name == QLatin1String("refuse_writes"))
            accessory.refusedWrites = readTimes(reader, fault);
        else if (name == QLatin1String("fail_open"))
            accessory.failedOpens = readTimes(reader, fault);
        else if (name == QLatin1String("unplug"))
            accessory.unplugAtWrite = reader.number(fault, "at_write", 1, 1, 1000000);
        else
            reader.fail(QStringLiteral("unknown \"event\" of the accessory: \"%1\"").arg(name));
    }
    return accessory;
}

Topology readTopology(Reader &reader, const QJsonValue &value)
{
    if (value.isUndefined() || value == QLatin1String("extend"))
        return Topology::Natural;
    if (value == QLatin1String("clone"))
        return Topology::Clone;
    if (value != QLatin1String("single"))
        reader.fail(QStringLiteral("\"topology\" must be \"extend\", \"clone\" or \"single\""));
    return Topology::Single;
}

DeskSetup readSetup(Reader &reader, const QJsonObject &root)
{
    DeskSetup setup = defaultSetup();
    const QJsonArray displays = reader.list(root, "displays");
    if (!displays.isEmpty())
        setup.displays.clear();
    for (const QJsonValue &display : displays)
        setup.displays.push_back(readDisplay(reader, display.toObject(), setup.displays.size()));

    const int displayCount = static_cast<int>(setup.displays.size());
    if (root.contains(QLatin1String("monitors")))
        setup.monitors.clear();
    const QJsonArray monitors = reader.list(root, "monitors");
    for (const QJsonValue &monitor : monitors)
        setup.monitors.push_back(readMonitor(reader, monitor.toObject(), displayCount));
    for (const MonitorSetup &monitor : setup.monitors) {
        if (monitor.display >= displayCount)
            reader.fail(QStringLiteral("fewer displays than the default monitors need"));
    }

    const QJsonArray events = reader.list(root, "events");
    for (const QJsonValue &value : events) {
        const QJsonObject event = value.toObject();
        const int last = static_cast<int>(setup.monitors.size()) - 1;
        const int monitor = reader.number(event, "monitor", 0, 0, last);
        if (last < 0)
            reader.fail(QStringLiteral("\"events\" without monitors"));
        setup.events.push_back({reader.wait(event, "at_ms"), monitor, readEvent(reader, event)});
    }
    setup.accessory = readAccessory(reader, root.value(QLatin1String("accessory")).toObject());
    setup.topology = readTopology(reader, root.value(QLatin1String("topology")));
    readLatency(reader, root.value(QLatin1String("latency")), setup.readLatency, setup.writeLatency);
    setup.administrator = root.value(QLatin1String("administrator")).toBool(true);
    setup.startUpWritable = root.value(QLatin1String("startup_writable")).toBool(true);
    setup.runasResult = reader.number(root, "runas_result", setup.runasResult, 0, 1000);
    if (root.contains(QLatin1String("audio")))
        reader.fail(readSoundScript(root.value(QLatin1String("audio")), setup.sound, setup.audioFaults));
    return setup;
}

} // namespace

DeskSetup defaultSetup()
{
    DeskSetup setup;
    setup.displays = {{QStringLiteral("\\\\.\\DISPLAY1"), {}}, {QStringLiteral("\\\\.\\DISPLAY2"), {}}};
    setup.monitors.resize(2);
    setup.monitors[0].model = findModel(QStringLiteral("Q27-OLED"));
    setup.monitors[1].model = findModel(QStringLiteral("Q32-MPCS"));
    setup.monitors[1].display = 1;
    return setup;
}

std::optional<DeskSetup> parseDeskScript(const QByteArray &json, QString &error)
{
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    if (fault.error != QJsonParseError::NoError) {
        const qsizetype line = json.left(fault.offset).count('\n') + 1;
        error = QStringLiteral("line %1: %2").arg(line).arg(fault.errorString());
        return std::nullopt;
    }
    if (!document.isObject()) {
        error = QStringLiteral("the script must be an object");
        return std::nullopt;
    }
    Reader reader;
    DeskSetup setup = readSetup(reader, document.object());
    error = reader.error;
    if (!error.isEmpty())
        return std::nullopt;
    return setup;
}

DeskSetup setupFromEnvironment()
{
    DeskSetup setup = defaultSetup();
    setup.readLatency = kRealisticRead;
    setup.writeLatency = kRealisticWrite;
    setup.sound.sound.sound = Sound::Sweep; // so that there is something to be heard

    const QString path = qEnvironmentVariable("QUORVEL_DESK_SCRIPT");
    if (!path.isEmpty()) {
        QFile file(path);
        QString error;
        std::optional<DeskSetup> scripted;
        if (file.open(QIODevice::ReadOnly))
            scripted = parseDeskScript(file.readAll(), error);
        else
            error = file.errorString();
        if (scripted)
            setup = *scripted;
        else
            qWarning("Desk script %s cannot be used: %s. The default desk is taken.", qUtf8Printable(path),
                     qUtf8Printable(error));
    }

    const QString latency = qEnvironmentVariable("QUORVEL_DESK_LATENCY");
    if (latency == QLatin1String("realistic")) {
        setup.readLatency = kRealisticRead;
        setup.writeLatency = kRealisticWrite;
    } else if (latency == QLatin1String("none")) {
        setup.readLatency = setup.writeLatency = std::chrono::milliseconds(0);
    }
    return setup;
}

} // namespace virtualdesk
