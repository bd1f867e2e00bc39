// Hot keys and scenario following as the window sees them: what they send shows on the pages and on the desktop.

#include <QStackedWidget>

#include "ddc_protocol/commandqueue.h"
#include "mainwindow.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/BasicSetting/pageshortcutkey.h"
#include "page/Following/pagescenariofollowing.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/settingspage.h"
#include "shortcut/shortcutfunctions.h"

/// The switches of the game aids, which no page shows.
static bool isAidSwitch(Command command)
{
    return command == Command::RefreshRate || command == Command::Crosshair || command == Command::Stopwatch ||
           command == Command::GameTime;
}

void MainWindow::createAutomation()
{
    m_overlay = new HotkeyOverlay(this);
    auto *keys = new pageShortcutKey(m_pages);
    connect(keys->runner(), &ShortcutRunner::begins, m_queue, &CommandQueue::drain);
    connect(keys->runner(), &ShortcutRunner::sent, this, &MainWindow::showShortcutResult);
    auto *following = new pageScenarioFollowing(m_pages);
    connect(following->follower(), &SceneFollower::begins, m_queue, &CommandQueue::drain);
    connect(following->follower(), &SceneFollower::sceneSent, this, [this] {
        fillPages();
        followSceneMode();
    });
    addPage(PageId::ShortcutKey, keys);
    addPage(PageId::ScenarioFollowing, following);
}

void MainWindow::showShortcutResult(int function, Command command, int value, bool ok)
{
    const QString name = QObject::tr(shortcutFunctions()[static_cast<std::size_t>(function)].name);
    m_overlay->showNote(name, ok ? valueText(function, command, value)
                                 : QObject::tr("The monitor did not take this setting."));
    fillPages();
    if (command == Command::SceneMode)
        followSceneMode();
}

/// A value as the page that sets it names it; a number where no page does.
QString MainWindow::valueText(int function, Command command, int value) const
{
    if (command == Command::SceneMode)
        return value % 2 != 0 ? QObject::tr("With the factory parameters") : QObject::tr("With your own parameters");
    for (const auto &[id, page] : m_pageOf) {
        const auto *settings = dynamic_cast<SettingsPage *>(page);
        const OptionGroupRow *row = settings ? settings->optionGroup(command) : nullptr;
        const QPushButton *option = row ? row->buttonOf(value) : nullptr;
        if (option)
            return option->text().trimmed();
    }
    const auto *fixed = std::get_if<FixedValues>(&shortcutFunctions()[static_cast<std::size_t>(function)].rule);
    if (fixed)
        return value == fixed->plus ? QObject::tr("On") : QObject::tr("Off");
    if (isAidSwitch(command))
        return value != 0 ? QObject::tr("On") : QObject::tr("Off");
    return QString::number(value);
}
