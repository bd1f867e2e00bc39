#include "page/engine/settingspage.h"

#include <algorithm>
#include <utility>

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/undobar.h"
#include "platform/desk.h"

static constexpr platform::milliseconds kPatience{300}; // a value on its way for longer is marked

SettingsPage::SettingsPage(CommandQueue &queue, QWidget *parent) : QLabel(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::sent, this, &SettingsPage::onSent);
    connect(&queue.values(), &ValueWatch::changed, this, &SettingsPage::onValueChanged);
}

OptionGroupRow *SettingsPage::optionGroup(Command command) const
{
    const auto group = std::find_if(m_groups.begin(), m_groups.end(),
                                    [command](const OptionGroupRow *row) { return row->group().command == command; });
    return group == m_groups.end() ? nullptr : *group;
}

OptionGroupRow *SettingsPage::ownGroup(const char *label) const
{
    const auto group = std::find_if(m_ownGroups.begin(), m_ownGroups.end(), [label](const OptionGroupRow *row) {
        return qstrcmp(row->group().label, label) == 0;
    });
    return group == m_ownGroups.end() ? nullptr : *group;
}

void SettingsPage::showOwnValues()
{
    for (OptionGroupRow *row : m_ownGroups)
        row->showValue(ownValue(row->group().label));
}

SliderWidget *SettingsPage::slider(const char *name) const
{
    const auto slider = std::find_if(m_sliders.begin(), m_sliders.end(), [name](const SliderWidget *widget) {
        return widget->name() == QLatin1String(name);
    });
    return slider == m_sliders.end() ? nullptr : *slider;
}

void SettingsPage::chooseCommand(const char *sliderName, std::function<std::optional<Command>()> choose)
{
    for (Slider &entry : m_sliderEntries) {
        if (entry.widget->name() == QLatin1String(sliderName))
            entry.choose = std::move(choose);
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

/// The group and option that an object name stands for. A name of a group without an option gives what the group holds.
std::optional<SettingsPage::Choice> SettingsPage::choiceOf(const QString &objectName) const
{
    std::optional<Choice> fallback;
    for (const OptionGroupRow *row : m_groups) {
        const OptionGroup &group = row->group();
        const QString prefix = QString::fromUtf8(group.label) + QLatin1Char('_');
        if (!objectName.startsWith(prefix))
            continue;
        for (const Option &option : group.options) {
            if (objectName == prefix + QString::fromUtf8(option.label))
                return Choice{*group.command, option.value};
        }
        if (!fallback)
            fallback = Choice{*group.command, deviceState.value(*group.command)};
    }
    return fallback;
}

void SettingsPage::onOptionClicked(QPushButton *button)
{
    const std::optional<Choice> choice = choiceOf(button->objectName());
    if (!choice)
        return;
    if (const auto veto = m_vetoes.find(choice->command); veto != m_vetoes.end() && veto->second(choice->value)) {
        updateInterfaceData(); // the button shows again what is set
        return;
    }
    const std::optional<int> before = deviceState.confirmed(choice->command);
    if (setOption(choice->command, choice->value))
        offerUndo(choice->command, before, choice->value);
}

bool SettingsPage::setOption(Command command, int value)
{
    deviceState.preview(command, value); // what it locks follows before the monitor does
    applyLocks();
    apply(m_before, command, value);
    const bool ok = send(command, value);
    apply(m_after, command, value);
    fill(command);
    showResult(ok);
    return ok;
}

void SettingsPage::onSliderChanged(const QString &name, int value, bool released)
{
    if (m_updating)
        return;
    const auto entry = std::find_if(m_sliderEntries.begin(), m_sliderEntries.end(),
                                    [&name](const Slider &slider) { return slider.widget->name() == name; });
    if (entry == m_sliderEntries.end())
        return;
    const std::optional<Command> command = commandOf(*entry);
    if (!command)
        return;
    const SendOn sendOn = entry->spec.sendOn;
    if (released == (sendOn != SendOn::Move)) {
        m_posted.insert(*command);
        m_paced ? m_queue.postPaced(*command, value) : m_queue.post(*command, value);
        apply(m_after, *command, value);
    } else if (sendOn == SendOn::Release) {
        deviceState.preview(*command, value);
    }
}

void SettingsPage::onSent(Command command, int, bool ok)
{
    if (m_posted.contains(command))
        showResult(ok);
}

std::optional<Command> SettingsPage::commandOf(const Slider &entry)
{
    return entry.choose ? entry.choose() : entry.spec.command;
}

void SettingsPage::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    m_shownMode = confirmedMode();
    updateInterfaceData(); // another page may have changed what this one shows
    reconcile();
}

/// The mode comes first where a value is one of a mode's: which half the answer belongs to follows from it.
void SettingsPage::reconcile()
{
    if (!m_asksWhenShown || !isVisible())
        return;
    std::vector<Command> commands;
    const auto add = [this, &commands](const QWidget *control, std::optional<Command> command) {
        if (command && control->isVisibleTo(this) && !deviceState.isFresh(*command))
            commands.push_back(*command);
    };
    for (const OptionGroupRow *row : m_groups)
        add(row, row->group().command);
    for (const Slider &entry : m_sliderEntries)
        add(entry.widget, commandOf(entry));
    if (!deviceState.isFresh(Command::SceneMode) && std::any_of(commands.begin(), commands.end(), isInSceneBlock))
        commands.insert(commands.begin(), Command::SceneMode);
    m_queue.askAll(commands, {});
}

SettingsPage::Mode SettingsPage::confirmedMode()
{
    return {deviceState.value(Command::SceneMode), deviceState.confirmed(Command::SceneMode)};
}

/// Another mode or half has values of its own.
void SettingsPage::followMode()
{
    const Mode mode = confirmedMode();
    if (deviceState.state(Command::SceneMode) == ValueState::Pending || std::exchange(m_shownMode, mode) == mode)
        return;
    if (showsValues())
        SettingsPage::updateInterfaceData();
    reconcile();
}

/// Several controls may stand for one command, also on pages that are not in sight: those are filled when shown.
void SettingsPage::onValueChanged(Command command)
{
    if (m_undoBar)
        m_undoBar->check();
    if (!isVisible())
        return;
    if (showsValues())
        fill(command);
    applyLocks();
    followValue(command);
    if (command == Command::SceneMode)
        followMode();
}

void SettingsPage::fill(Command command)
{
    const Updating updating(*this);
    for (OptionGroupRow *row : m_groups) {
        if (row->group().command == command)
            fillRow(row);
    }
    for (const Slider &entry : m_sliderEntries) {
        if (commandOf(entry) == command)
            fillSlider(entry.widget, command);
    }
}

/// A value on its way says so only when that takes longer than one expects; then it is looked at once more.
Mark SettingsPage::markOf(Command command)
{
    switch (deviceState.state(command)) {
    case ValueState::Known:
        break;
    case ValueState::Unknown:
        return keepsContents() || deviceState.isDoubted(command) ? Mark::Unconfirmed : Mark::Unknown;
    case ValueState::Refused:
        return Mark::Refused;
    case ValueState::Pending: {
        platform::Clock &clock = platform::desk().clock();
        const qint64 since = deviceState.pendingSince(command).value_or(clock.now()).msecsTo(clock.now());
        if (since >= kPatience.count())
            return Mark::Waiting;
        clock.callLater(kPatience - platform::milliseconds(std::max<qint64>(since, 0)), this,
                        [this, command] { onValueChanged(command); });
        break;
    }
    }
    return Mark::None;
}

void SettingsPage::showResult(bool)
{
}

QWidget *SettingsPage::buildPart(const char *)
{
    return nullptr;
}

void SettingsPage::fillRow(OptionGroupRow *row)
{
    const Command command = *row->group().command;
    const Mark mark = markOf(command);
    if (mark != Mark::Unconfirmed)
        row->showValue(mark != Mark::Unknown ? std::optional(deviceState.value(command)) : std::nullopt);
    row->setMark(mark);
}

void SettingsPage::fillSlider(SliderWidget *slider, Command command)
{
    if (slider->isHeld())
        return;
    const Mark mark = markOf(command);
    if (mark != Mark::Unknown && mark != Mark::Unconfirmed)
        slider->setValue(deviceState.value(command));
    slider->setMark(mark);
}

void SettingsPage::updateInterfaceData()
{
    const Updating updating(*this);
    for (OptionGroupRow *row : m_groups)
        fillRow(row);
    for (const Slider &entry : m_sliderEntries) {
        if (const std::optional<Command> command = commandOf(entry))
            fillSlider(entry.widget, *command);
    }
    showOwnValues();
    applyLocks();
}

void SettingsPage::updateControlText()
{
    m_texts.retranslate();
    applyLocks();
    showUndoTexts();
}
