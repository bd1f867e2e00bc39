#include "virtualdesk/deskscript.h"

#include <utility>

#include <QFile>
#include <QJsonDocument>

#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/monitorscript.h"
#include "virtualdesk/programscript.h"
#include "virtualdesk/soundscript.h"

namespace virtualdesk {

namespace {

constexpr int kHighestByte = 255;

DisplaySetup readDisplay(ScriptObject object, std::size_t index)
{
    DisplaySetup display;
    display.deviceName = QStringLiteral("\\\\.\\DISPLAY%1").arg(index + 1);
    object.text("name", display.deviceName);
    int bounds[4] = {};
    object.numbers("bounds", bounds);
    display.bounds = QRect(bounds[0], bounds[1], bounds[2], bounds[3]);
    object.finish();
    return display;
}

AccessorySetup readAccessory(ScriptObject object)
{
    AccessorySetup accessory;
    object.flag("plugged", accessory.plugged);
    object.number("form", accessory.form, 0, kHighestByte);
    if (matrixCells(accessory.form) == 0)
        object.fail(QStringLiteral("\"form\" must be one that the accessory is built in"));
    object.each("faults", [&accessory](ScriptObject fault) {
        const QString word = fault.take("event").toString();
        int times = 1;
        if (word == QLatin1String("refuse_writes")) {
            fault.times(times, kForEver);
            accessory.refusedWrites = times;
        } else if (word == QLatin1String("fail_open")) {
            fault.times(times, kForEver);
            accessory.failedOpens = times;
        } else if (word == QLatin1String("unplug")) {
            accessory.unplugAtWrite = 1;
            fault.number("at_write", accessory.unplugAtWrite, 1, 1000000);
        } else {
            fault.fail(QStringLiteral("unknown \"event\" of the accessory: \"%1\"").arg(word));
        }
        fault.finish();
    });
    object.finish();
    return accessory;
}

UserSetup readUser(ScriptObject object)
{
    UserSetup user;
    user.idle = object.wait("idle_ms");
    object.number("notification_state", user.notificationState, 1, 7);
    object.finish();
    return user;
}

ScreenSetup readScreen(ScriptObject object)
{
    ScreenSetup screen;
    QString fileName;
    object.text("picture", fileName);
    if (!fileName.isEmpty() && !screen.picture.load(fileName))
        object.fail(QStringLiteral("\"picture\" %1 cannot be read").arg(fileName));
    object.each("faults", [&screen](ScriptObject fault) {
        const QString word = fault.take("event").toString();
        if (word != QLatin1String("fail_copies"))
            fault.fail(QStringLiteral("unknown \"event\" of the screen: \"%1\"").arg(word));
        screen.failures = 1;
        fault.times(screen.failures, kForEver);
        fault.finish();
    });
    object.finish();
    return screen;
}

Topology readTopology(ScriptObject &root)
{
    const QJsonValue value = root.take("topology");
    if (value.isUndefined() || value == QLatin1String("extend"))
        return Topology::Natural;
    if (value == QLatin1String("clone"))
        return Topology::Clone;
    if (value != QLatin1String("single"))
        root.fail(QStringLiteral("\"topology\" must be \"extend\", \"clone\" or \"single\""));
    return Topology::Single;
}

void readMonitors(ScriptObject &root, DeskSetup &setup)
{
    const int displays = static_cast<int>(setup.displays.size());
    if (root.has("monitors"))
        setup.monitors.clear();
    root.each("monitors",
              [&](const ScriptObject &monitor) { setup.monitors.push_back(readMonitor(monitor, displays)); });
    for (const MonitorSetup &monitor : setup.monitors) {
        if (monitor.display >= displays)
            root.fail(QStringLiteral("fewer displays than the default monitors need"));
    }
}

void readEvents(ScriptObject &root, DeskSetup &setup)
{
    const int last = static_cast<int>(setup.monitors.size()) - 1;
    root.each("events", [&setup, last](ScriptObject object) {
        TimedEvent timed;
        object.number("monitor", timed.monitor, 0, last);
        if (last < 0)
            object.fail(QStringLiteral("\"events\" without monitors"));
        timed.at = object.wait("at_ms");
        timed.event = readEvent(object);
        setup.events.push_back(timed);
    });
}

/// Changes a set-up by what the script says.
DeskSetup readSetup(ScriptObject root, DeskSetup setup)
{
    const std::vector<DisplaySetup> own = std::exchange(setup.displays, {});
    root.each("displays", [&setup](const ScriptObject &display) {
        setup.displays.push_back(readDisplay(display, setup.displays.size()));
    });
    if (setup.displays.empty())
        setup.displays = own;
    readMonitors(root, setup);
    readEvents(root, setup);
    if (root.has("accessory"))
        setup.accessory = readAccessory(root.inside("accessory"));
    if (root.has("user"))
        setup.user = readUser(root.inside("user"));
    if (root.has("screen"))
        setup.screen = readScreen(root.inside("screen"));
    setup.topology = readTopology(root);
    readLatency(root, setup.readLatency, setup.writeLatency);
    root.flag("administrator", setup.administrator);
    root.flag("startup_writable", setup.startUpWritable);
    root.number("runas_result", setup.runasResult, 0, 1000);
    if (root.has("programs"))
        setup.programs = readPrograms(root);
    if (root.has("audio"))
        readSoundScript(root, setup.sound, setup.audioFaults);
    root.finish();
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

std::optional<DeskSetup> parseDeskScript(const QByteArray &json, QString &error, const DeskSetup &usual)
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
    error.clear();
    DeskSetup setup = readSetup({document.object(), error}, usual);
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
            scripted = parseDeskScript(file.readAll(), error, setup);
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
