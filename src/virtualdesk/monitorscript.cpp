#include "virtualdesk/monitorscript.h"

#include <QFile>
#include <QRandomGenerator>

namespace virtualdesk {

namespace {

QByteArray randomBytes(int length)
{
    // The same bytes at every run, so that what they lead to can be seen again.
    QRandomGenerator generator(static_cast<quint32>(length));
    QByteArray bytes(length, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(generator.bounded(256));
    return bytes;
}

std::optional<QByteArray> readEdid(ScriptObject &monitor)
{
    if (!monitor.has("edid"))
        return std::nullopt;
    const QJsonValue value = monitor.take("edid");
    if (value.isObject()) {
        int length = 0;
        ScriptObject edid = monitor.inside("edid", value);
        edid.number("random", length, 0, 65536);
        edid.finish();
        return randomBytes(length);
    }
    QByteArray hex = value.toString().toLatin1();
    hex.replace(' ', "");
    const QByteArray bytes = QByteArray::fromHex(hex);
    if (!value.isString() || bytes.size() * 2 != hex.size())
        monitor.fail(QStringLiteral("\"edid\" must be hexadecimal bytes or {\"random\": length}"));
    return bytes;
}

void readValues(ScriptObject &object, MonitorSetup &monitor)
{
    const QJsonObject values = object.members("values");
    for (auto it = values.begin(); it != values.end(); ++it) {
        bool ok = false;
        const int code = it.key().toInt(&ok, 0);
        const int number = it.value().toInt(-1);
        if (!ok || code < 0 || code > 255 || number < 0 || number > 0xFFFF)
            object.fail(QStringLiteral("\"values\" must pair codes with numbers, but has \"%1\"").arg(it.key()));
        monitor.values.emplace_back(static_cast<std::uint8_t>(code), static_cast<std::uint16_t>(number));
    }
}

std::optional<Replay> readReplay(ScriptObject &object)
{
    if (!object.has("replay"))
        return {};
    QFile file(object.take("replay").toString());
    if (!file.open(QIODevice::ReadOnly)) {
        object.fail(QStringLiteral("\"replay\" cannot be read: %1").arg(file.errorString()));
        return {};
    }
    int monitor = 0;
    object.number("replay_monitor", monitor, 0, 1000);
    QString error;
    auto replay = parseRecording(file.readAll(), monitor, error);
    if (!replay)
        object.fail(QStringLiteral("\"replay\": %1").arg(error));
    return replay;
}

} // namespace

MonitorEvent readEvent(ScriptObject &object)
{
    const QString word = object.take("event").toString();
    MonitorEvent event;
    event.fault = findFault(word);
    if (event.fault == nullptr) {
        object.failUnknown("event", word);
        return event;
    }
    event.times = event.fault->times;
    object.times(event.times, kForEver);
    object.number("code", event.code, 0, 255);
    if (event.fault->code == FaultCode::Needed && event.code == kAnyCommand)
        object.fail(QStringLiteral("\"%1\" needs a \"code\"").arg(word));
    event.wait = object.wait("ms");
    event.read = object.wait("read_ms");
    event.write = object.wait("write_ms");
    object.finish();
    return event;
}

void readLatency(ScriptObject &object, std::chrono::milliseconds &read, std::chrono::milliseconds &write)
{
    const QJsonValue value = object.take("latency");
    if (value.isUndefined())
        return;
    if (value == QLatin1String("none")) {
        read = write = std::chrono::milliseconds(0);
    } else if (value == QLatin1String("realistic")) {
        read = kRealisticRead;
        write = kRealisticWrite;
    } else if (value.isObject()) {
        ScriptObject latency = object.inside("latency", value);
        read = latency.wait("read_ms");
        write = latency.wait("write_ms");
        latency.finish();
    } else {
        object.fail(QStringLiteral("\"latency\" must be \"realistic\", \"none\" or {\"read_ms\", \"write_ms\"}"));
    }
}

MonitorSetup readMonitor(ScriptObject object, int displays)
{
    MonitorSetup monitor;
    const QString model = object.take("model").toString();
    monitor.model = findModel(model);
    if (monitor.model == nullptr)
        object.failUnknown("model", model);
    object.number("display", monitor.display, 0, displays - 1);
    object.flag("plugged", monitor.plugged);
    monitor.edid = readEdid(object);
    readValues(object, monitor);
    monitor.replay = readReplay(object);
    object.each("faults", [&monitor](ScriptObject fault) { monitor.faults.push_back(readEvent(fault)); });
    if (object.has("latency")) {
        MonitorEvent latency;
        latency.fault = findFault(QStringLiteral("latency"));
        readLatency(object, latency.read, latency.write);
        monitor.faults.push_back(latency);
    }
    object.finish();
    return monitor;
}

} // namespace virtualdesk
