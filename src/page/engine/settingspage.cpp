#include "page/engine/settingspage.h"

#include <algorithm>
#include <utility>

#include <QPushButton>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagehead.h"
#include "page/engine/riskychanges.h"
#include "page/engine/undobar.h"

SettingsPage::SettingsPage(CommandQueue &queue, QWidget *parent)
    : QLabel(parent), m_queue(queue), m_controls(m_texts), m_locks(m_controls),
      m_values(*this, m_controls,
               {[this] { return keepsContents(); }, [this](Command command) { onValueChanged(command); }})
{
    describeAs(this, QAccessible::Pane);
    connect(&m_controls, &PageControls::optionClicked, this, &SettingsPage::onOptionClicked);
    connect(&m_controls, &PageControls::ownOptionClicked, this, &SettingsPage::onOwnOptionClicked);
    connect(&m_controls, &PageControls::sliderChanged, this, &SettingsPage::onSliderChanged);
    connect(&m_controls, &PageControls::sliderHoldLost, this, &SettingsPage::onSliderHoldLost);
    connect(&m_locks, &PageLocks::settingWanted, this, &SettingsPage::settingWanted);
    connect(&queue, &CommandQueue::sent, this, &SettingsPage::onSent);
    connect(&queue.values(), &ValueWatch::changed, this, &SettingsPage::onValueChanged);
}

void SettingsPage::buildSections(std::span<const Section> sections, QVBoxLayout *column)
{
    m_controls.build(sections, m_locks.rules(), column, [this](const char *name) { return buildPart(name); });
}

PageHead *SettingsPage::addHead(QVBoxLayout *column)
{
    auto *head = new PageHead(this);
    column->addWidget(head);
    m_result.setHead(head);
    return head;
}

QString SettingsPage::optionText(Command command, int value) const
{
    const OptionGroupRow *row = optionGroup(command);
    const QPushButton *option = row ? row->buttonOf(value) : nullptr;
    return option ? option->text().trimmed() : QString();
}

void SettingsPage::addUndoBar(QVBoxLayout *column)
{
    m_undoBar = new UndoBar(this);
    column->addWidget(m_undoBar);
    connect(m_undoBar, &UndoBar::undoWanted, this, [this](const UndoOffer &offer) {
        if (setOption(offer.command, offer.before, WayBack::Taken)) // else it may be tried once more
            m_undoBar->check();
    });
}

void SettingsPage::showOwnValues()
{
    for (OptionGroupRow *row : m_controls.ownGroups()) {
        const std::optional<int> value = ownValue(row->group().label);
        row->showValue(value);
        row->setMark(value ? Mark::None : Mark::Unchosen);
    }
}

void SettingsPage::apply(const std::map<Command, Rule> &rules, Command command, int value) const
{
    if (const auto rule = rules.find(command); rule != rules.end())
        rule->second(value);
}

bool SettingsPage::send(Command command, int value)
{
    m_queue.drain();
    return sendValue(command, value);
}

bool SettingsPage::monitorHas(Command command, int value)
{
    return deviceState.confirmed(command) == value && readCommandOnce(readRow(command)) == value;
}

void SettingsPage::onOptionClicked(QPushButton *button)
{
    const std::optional<PageControls::Choice> choice = m_controls.choiceOf(button->objectName());
    if (!choice)
        return;
    if (const auto veto = m_vetoes.find(choice->command); veto != m_vetoes.end() && veto->second(choice->value)) {
        updateInterfaceData(); // the button shows again what is set
        return;
    }
    setOption(choice->command, choice->value, WayBack::Offered);
}

void SettingsPage::onOwnOptionClicked(const char *group, int value)
{
    showResult(true); // what is said there was said of another choice
    onButtonClicked(group, value);
    showOwnValues();
}

void SettingsPage::offerUndo(Command command, std::optional<int> before, int value)
{
    if (m_undoBar && before && before != value && isRiskyChange(command, value))
        m_undoBar->offer(optionGroup(command)->group(), *before, value);
}

bool SettingsPage::setOption(Command command, int value, WayBack way)
{
    const std::optional<int> before = deviceState.confirmed(command);
    deviceState.preview(command, value); // what it locks follows before the monitor does
    m_locks.apply();
    apply(m_before, command, value);
    const bool ok = send(command, value);
    apply(m_after, command, value);
    fill(command);
    showResult(ok, m_controls.wordsFor(command, value), [=, this] { setOption(command, value, way); });
    if (ok && way == WayBack::Offered)
        offerUndo(command, before, value);
    return ok;
}

void SettingsPage::onSliderChanged(const QString &name, int value, bool released)
{
    if (m_updating)
        return;
    const PageControls::Slider *entry = m_controls.sliderEntry(name);
    const std::optional<Command> command = entry ? entry->command() : std::nullopt;
    if (!command)
        return;
    const SendOn sendOn = entry->spec.sendOn;
    if (released == (sendOn != SendOn::Move)) {
        m_posted.insert_or_assign(*command, Posted{value, m_result.begin()});
        m_paced ? m_queue.postPaced(*command, value) : m_queue.post(*command, value);
        apply(m_after, *command, value);
    } else if (sendOn == SendOn::Release) {
        deviceState.preview(*command, value);
    }
    if (released && showsValues())
        fill(*command); // what was told while it was held
}

/// What is shown was not wanted to the end: nothing is sent.
void SettingsPage::onSliderHoldLost(const QString &name)
{
    const PageControls::Slider *entry = m_controls.sliderEntry(name);
    const std::optional<Command> command = entry ? entry->command() : std::nullopt;
    if (!command)
        return;
    deviceState.dropPreview(*command);
    if (showsValues())
        fill(*command);
}

/// Of several values the newest one counts.
void SettingsPage::onSent(Command command, int value, bool ok)
{
    const auto posted = m_posted.find(command);
    if (posted == m_posted.end() || posted->second.value != value)
        return;
    m_result.showOf(posted->second.change, ok, m_controls.wordsFor(command, value),
                    [this, command, value] { setOption(command, value, WayBack::Offered); });
}

void SettingsPage::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    m_shownMode = modeNow();
    m_lastMode = m_shownMode.shown;
    updateInterfaceData(); // another page may have changed what this one shows
    reconcile();
}

/// The mode comes first where a value is one of a mode's: which half the answer belongs to follows from it.
void SettingsPage::reconcile()
{
    if (!m_asksWhenShown || !isVisible())
        return;
    std::vector<Command> commands = m_controls.commandsInSight(this);
    std::erase_if(commands, [](Command command) { return deviceState.isFresh(command); });
    if (!deviceState.isFresh(Command::SceneMode) && std::any_of(commands.begin(), commands.end(), isInSceneBlock))
        commands.insert(commands.begin(), Command::SceneMode);
    m_queue.askAll(commands, {});
}

SettingsPage::Mode SettingsPage::modeNow()
{
    return {deviceState.value(Command::SceneMode), deviceState.confirmed(Command::SceneMode),
            deviceState.timesSetAnew()};
}

/// Another mode or half has values of its own.
void SettingsPage::followMode()
{
    const Mode mode = modeNow();
    if (std::exchange(m_lastMode, mode.shown) != mode.shown)
        letGo();
    if (deviceState.state(Command::SceneMode) == ValueState::Pending || std::exchange(m_shownMode, mode) == mode)
        return;
    if (showsValues())
        SettingsPage::updateInterfaceData();
    reconcile();
}

/// What is in the user's hand was meant for the mode before.
void SettingsPage::letGo()
{
    for (const PageControls::Slider &entry : m_controls.sliderEntries()) {
        if (const std::optional<Command> command = entry.command(); command && isInSceneBlock(*command))
            entry.widget->slider()->loseHold();
    }
}

/// Several controls may stand for one command, also on pages that are not in sight: those are filled when shown.
void SettingsPage::onValueChanged(Command command)
{
    if (m_undoBar)
        m_undoBar->check();
    if (command == Command::Capability && deviceState.isKnown(command))
        m_controls.followCapability();
    if (!isVisible())
        return;
    if (showsValues())
        fill(command);
    m_locks.apply();
    followValue(command);
    if (command == Command::SceneMode)
        followMode();
}

void SettingsPage::fill(Command command)
{
    const Updating updating(*this);
    m_values.fill(command);
}

QWidget *SettingsPage::buildPart(const char *)
{
    return nullptr;
}

void SettingsPage::updateInterfaceData()
{
    const Updating updating(*this);
    m_result.followMonitor();
    m_values.fillAll();
    showOwnValues();
    m_locks.apply();
}

void SettingsPage::updateControlText()
{
    m_texts.retranslate();
    m_controls.shrinkCaptions();
    m_locks.apply();
    if (m_undoBar)
        m_undoBar->retranslate();
}
