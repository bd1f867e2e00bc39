#include "scenehands.h"

#include "ddc_protocol/commandqueue.h"
#include "interfacemodes.h"
#include "monitorchecks.h"
#include "navigator.h"
#include "page/Scene/pagescenesetting.h"
#include "tray/traypanelopener.h"

SceneHands::SceneHands(Navigator &navigator, InterfaceModes &modes, MonitorChecks &checks, QObject *parent)
    : QObject(parent), m_navigator(navigator), m_modes(modes), m_checks(checks)
{
}

void SceneHands::join(pageSceneSetting &page, TrayPanelOpener &trayPanel, CommandQueue &queue)
{
    connect(&m_navigator, &Navigator::sceneChosen, &page, &pageSceneSetting::chooseScene);
    connect(&trayPanel, &TrayPanelOpener::sceneChosen, &page, &pageSceneSetting::chooseScene);
    connect(&trayPanel, &TrayPanelOpener::halfChosen, &page, &pageSceneSetting::switchHalf);
    connect(&page, &pageSceneSetting::viewShown, &m_navigator, &Navigator::followSceneMode);
    connect(&page, &pageSceneSetting::modeChangeBegins, this, &SceneHands::begin);
    connect(&page, &pageSceneSetting::modeChangeEnded, this, &SceneHands::end);
    connect(&queue.values(), &ValueWatch::changed, this, &SceneHands::followValue);
}

void SceneHands::begin()
{
    m_modes.set(kLocked);
}

void SceneHands::end()
{
    m_modes.set(kByModel);
    m_checks.readMissingBlock();
}

void SceneHands::followValue(Command command)
{
    if (command == Command::Capability)
        m_navigator.followMonitor();
    if (command != Command::SceneMode)
        return;
    m_navigator.followSceneMode();
    m_checks.readMissingBlock();
}
