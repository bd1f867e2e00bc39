#pragma once

#include <QString>

/// What the window and the panel of the tray icon say about the monitor in use.
struct MonitorStatus
{
    QString name;  ///< as plain text; empty without a monitor
    QString state; ///< in words, translated
    bool isGood = false;
};
