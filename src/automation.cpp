#include "automation.h"

#include <QStackedWidget>

#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/commandqueue.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/BasicSetting/pageshortcutkey.h"
#include "page/Following/pagescenariofollowing.h"
#include "page/engine/keyfields.h"
#include "page/pageset.h"
#include "shortcut/shortcutfunctions.h"

/// The switches of the game aids, which no page shows.
static bool isAidSwitch(Command command)
{
    return command == Command::RefreshRate || command == Command::Crosshair || command == Command::Stopwatch ||
           command == Command::GameTime;
}

Automation::Automation(CommandQueue &queue, PageSet &pages, QStackedWidget *stack, QObject *parent)
    : QObject(parent), m_pages(pages), m_keyFields(std::make_unique<KeyFields>()), m_overlay(new HotkeyOverlay(this)),
      m_writer(new AutomaticWriter(queue, this))
{
    auto *keys = new pageShortcutKey(*m_keyFields, stack);
    connect(keys->runner(), &ShortcutRunner::begins, &queue, &CommandQueue::drain);
    connect(keys->runner(), &ShortcutRunner::sent, this, &Automation::showResult);
    auto *following = new pageScenarioFollowing(stack);
    m_watch = following->watch();
    connect(following->follower(), &SceneFollower::begins, &queue, &CommandQueue::drain);
    connect(following->follower(), &SceneFollower::sceneSent, this, [this] { Q_EMIT sent(Command::SceneMode); });
    connect(m_writer, &AutomaticWriter::dayIsUsedUp, this,
            [this](const QString &text) { m_overlay->showMessage(QObject::tr("Automatic changes"), text); });
    pages.add(PageId::ShortcutKey, keys);
    pages.add(PageId::ScenarioFollowing, following);
}

Automation::~Automation() = default;

void Automation::showResult(int function, Command command, int value, bool ok)
{
    const QString name = QObject::tr(shortcutFunction(function)->name);
    m_overlay->showNote(
        name, ok ? valueText(function, command, value) : QObject::tr("The monitor did not take this setting."),
        ok ? m_pages.levelOf(command, value) : std::nullopt);
    Q_EMIT sent(command);
}

/// A value as the page that sets it names it; a number where no page does.
QString Automation::valueText(int function, Command command, int value) const
{
    if (command == Command::SceneMode)
        return value % 2 != 0 ? QObject::tr("With the factory parameters") : QObject::tr("With your own parameters");
    if (const QString option = m_pages.optionText(command, value); !option.isEmpty())
        return option;
    const auto *fixed = std::get_if<FixedValues>(&shortcutFunction(function)->rule);
    if (fixed)
        return value == fixed->plus ? QObject::tr("On") : QObject::tr("Off");
    if (isAidSwitch(command))
        return value != 0 ? QObject::tr("On") : QObject::tr("Off");
    return QString::number(value);
}
