#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <vector>

#include <QByteArrayList>
#include <QRect>
#include <QString>

#include "ddc_protocol/edid.h"
#include "platform/monitorconfiguration.h"

/// Which monitor of all: two of the same model differ in serial number or at least in where they are connected.
struct MonitorIdentity
{
    QString name;   ///< as the EDID says
    QString serial; ///< as the EDID says; may be empty
    QString place;  ///< the system's name of the connection; it lasts while the cable stays
    bool operator==(const MonitorIdentity &) const = default;
};

/// One monitor that commands can go to: the platform's record of it, and beside it whether there is one. The handle
/// does not tell, for null may be one.
struct MonitorInfo : platform::PhysicalMonitor
{
    bool fetched = false; ///< off: the platform gave none, the record is empty, and every command to it fails
    MonitorIdentity identity;
    EdidFacts facts;
    QRect bounds; ///< of the display that it shows, in desktop pixels

    /// What requests go to; nothing when it was not fetched.
    std::optional<platform::PhysicalMonitorHandle> target() const
    {
        return fetched ? std::optional(handle) : std::nullopt;
    }
};

/// The monitors found, in step with the labels. Replaced only by findDevices, on the interface thread and under the
/// transport's lock; read by the transport under that lock.
extern std::vector<MonitorInfo> monitorList;

/// Which of monitorList every command goes to. Written by the device session, and by the choice
/// of another machine just before the program starts anew.
extern std::atomic<std::uint8_t> currentMonitorIndex;

/// How the desktop spans the displays.
enum class ProjectionMode { Unknown = 0, InternalOnly = 1, ExternalOnly = 2, Clone = 3, Extend = 4 };

/// Set by currentProjectionMode and, from internal to external, by findDevices. Read by the device session.
extern ProjectionMode projectionMode;

/// Asks the platform for the active display paths and sets projectionMode. Returns the mode; Unknown, with
/// projectionMode left as it was, when the platform does not tell.
ProjectionMode currentProjectionMode();

/// Rebuilds monitorList from the displays that show a toolkit screen and returns one label for each record, "1. Model".
/// Handles of the previous list are released first.
QByteArrayList findDevices();

/// The model names of the monitors on display number n, joined by ";". Empty when any of them has no readable EDID.
QString monitorNameFromDisplayIndex(int n);
