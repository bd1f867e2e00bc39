#pragma once

#include <QString>

class SearchDeviceDlg;

/// What the window and the panel of the tray icon say about the monitor in use.
struct MonitorStatus
{
    QString name;  ///< as plain text; empty without a monitor
    QString state; ///< in words, translated
    bool isGood = false;
};

/// The monitor that the session has chosen, and whether it answers.
MonitorStatus monitorStatus(const SearchDeviceDlg &session);
