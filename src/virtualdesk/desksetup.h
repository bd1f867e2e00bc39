#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QString>

#include "virtualdesk/applications.h"
#include "virtualdesk/monitormodel.h"
#include "virtualdesk/simulatedendpoint.h"
#include "virtualdesk/simulatedmonitor.h"

namespace virtualdesk {

/// Something that happens to a monitor, at once or at its time.
struct MonitorEvent
{
    const MonitorFault *fault = nullptr; ///< a row of monitorFaults()
    int times = 1;                       ///< requests, or kForEver
    int code = kAnyCommand;              ///< VCP code, for faults of one
    std::chrono::milliseconds wait{0};   ///< for what takes its time
    std::chrono::milliseconds read{0};   ///< for latency, as the next
    std::chrono::milliseconds write{0};
};

struct TimedEvent
{
    std::chrono::milliseconds at{0}; ///< after the main window was first shown
    int monitor = 0;
    MonitorEvent event;
};

struct MonitorSetup
{
    const MonitorModel *model = nullptr;
    int display = 0;
    bool plugged = true;
    std::optional<QByteArray> edid; ///< instead of the model's own
    std::vector<std::pair<std::uint8_t, std::uint16_t>> values;
    std::vector<MonitorEvent> faults;
    std::optional<Replay> replay; ///< what it answers, instead of its own values
};

struct DisplaySetup
{
    QString deviceName;
    QRect bounds; ///< null: the primary screen's for the first display, else beside the display before
};

/// The LED-matrix accessory. Counts are 0 for never, and may be kForEver but for the last.
struct AccessorySetup
{
    bool plugged = true;
    int form = 0; ///< 0 tapering, 1 rectangle
    int refusedWrites = 0;
    int failedOpens = 0;
    int unplugAtWrite = 0;
};

/// Who sits at the desk, as the system tells it.
struct UserSetup
{
    std::chrono::milliseconds idle{0}; ///< since the last key or movement
    int notificationState = 5;         ///< as Windows counts them: 2 and 3 a program fills the screen, 5 nothing does
};

/// What the screens show.
struct ScreenSetup
{
    QImage picture;   ///< null: what the real one shows
    int failures = 0; ///< copies that fail, or kForEver
};

/// How the active display paths follow from the plugged monitors.
enum class Topology {
    Natural, ///< one path a monitor; those of one display share its source
    Clone,   ///< all share one source
    Single   ///< one path only, whatever is plugged
};

/// What lies on the desk at the start.
struct DeskSetup
{
    std::vector<DisplaySetup> displays;
    std::vector<MonitorSetup> monitors;
    std::vector<TimedEvent> events;
    AccessorySetup accessory;
    ScreenSetup screen;
    Topology topology = Topology::Natural;
    std::chrono::milliseconds readLatency{0};
    std::chrono::milliseconds writeLatency{0};
    bool administrator = true;
    bool startUpWritable = true;                      ///< whether what starts at log-on may be changed
    int runasResult = 42;                             ///< above 32: the elevated process was started
    std::optional<std::vector<Application>> programs; ///< instead of the usual ones
    UserSetup user;
    EndpointSetup sound;
    std::vector<AudioFault> audioFaults;
};

/// What a request costs on a real wire.
inline constexpr std::chrono::milliseconds kRealisticRead{40};
inline constexpr std::chrono::milliseconds kRealisticWrite{50};

/// Two monitors of different models on two displays side by side, without latency.
DeskSetup defaultSetup();

} // namespace virtualdesk
