#pragma once

#include <QObject>

#include "ddc_protocol/command.h"

class CommandQueue;
class InterfaceModes;
class MonitorChecks;
class Navigator;
class TrayPanelOpener;
class pageSceneSetting;

/// Bars and tray panel are hands of the scene page: modes and halves go one way only, and whatever shows the mode
/// follows what the monitor has.
class SceneHands : public QObject
{
    Q_OBJECT
public:
    SceneHands(Navigator &navigator, InterfaceModes &modes, MonitorChecks &checks, QObject *parent);

    /// Joins the hands to the page, and both to the values that the queue brings.
    void join(pageSceneSetting &page, TrayPanelOpener &trayPanel, CommandQueue &queue);

private:
    void begin();
    void end();
    void followValue(Command command);

    Navigator &m_navigator;
    InterfaceModes &m_modes;
    MonitorChecks &m_checks;
};
