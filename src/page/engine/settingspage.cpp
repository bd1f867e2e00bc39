#include "page/engine/settingspage.h"

#include <algorithm>

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/transport.h"
#include "page/engine/optiongrouprow.h"

SettingsPage::SettingsPage(CommandQueue &queue, QWidget *parent) : QLabel(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::sent, this, &SettingsPage::onSent);
    connect(&queue, &CommandQueue::answered, this, &SettingsPage::onAnswered);
}

OptionGroupRow *SettingsPage::optionGroup(Command command) const
{
    const auto group = std::find_if(m_groups.begin(), m_groups.end(),
                                    [command](const OptionGroupRow *row) { return row->group().command == command; });
    return group == m_groups.end() ? nullptr : *group;
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
    return Korvu_SetCommandVal(writeRow(command), static_cast<std::uint16_t>(value), kRetryCount);
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
                return Choice{group.command, option.value};
        }
        if (!fallback)
            fallback = Choice{group.command, deviceState.value(group.command)};
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
    deviceState.storeUserValue(choice->command, choice->value);
    apply(m_before, choice->command, choice->value);
    const bool ok = send(choice->command, choice->value);
    apply(m_after, choice->command, choice->value);
    for (OptionGroupRow *row : m_groups) { // several rows may stand for one command
        if (row->group().command == choice->command)
            row->showValue(choice->value);
    }
    onSent(choice->command, choice->value, ok);
}

void SettingsPage::onSliderChanged(const QString &name, int value, bool released)
{
    if (m_updating)
        return;
    const auto entry = std::find_if(m_sliderEntries.begin(), m_sliderEntries.end(),
                                    [&name](const Slider &slider) { return slider.widget->name() == name; });
    if (entry == m_sliderEntries.end())
        return;
    const std::optional<Command> command = entry->choose ? entry->choose() : entry->spec.command;
    if (!command)
        return;
    const SendOn sendOn = entry->spec.sendOn;
    const bool storesLater = m_results.contains(*command) || (sendOn == SendOn::ReleaseWithStore && !released);
    if (!storesLater)
        deviceState.storeUserValue(*command, value);
    if (released == (sendOn != SendOn::Move)) {
        m_queue.post(*command, value);
        apply(m_after, *command, value);
    }
}

void SettingsPage::onSent(Command command, int value, bool ok)
{
    if (shownCommands().contains(command))
        showResult(ok);
    if (const auto rule = m_results.find(command); rule != m_results.end())
        rule->second(value, ok);
}

std::set<Command> SettingsPage::shownCommands() const
{
    std::set<Command> commands;
    for (const OptionGroupRow *row : m_groups)
        commands.insert(row->group().command);
    for (const Slider &entry : m_sliderEntries)
        commands.insert(entry.spec.command);
    return commands;
}

void SettingsPage::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    updateInterfaceData(); // another page may have changed what this one shows
    if (!m_asksWhenShown)
        return;
    for (const Command command : shownCommands()) {
        if (!deviceState.isKnown(command))
            m_queue.ask(command);
    }
}

void SettingsPage::onAnswered(Command command, int value)
{
    if (!shownCommands().contains(command))
        return;
    if (!deviceState.isKnown(command)) // the user may have set it while the answer was on its way
        deviceState.store(command, value);
    updateInterfaceData();
}

void SettingsPage::showResult(bool)
{
}

QWidget *SettingsPage::buildPart(const char *)
{
    return nullptr;
}

void SettingsPage::fillSlider(SliderWidget *slider, Command command)
{
    if (deviceState.isKnown(command))
        slider->setValue(deviceState.value(command));
    else
        slider->setUnknown(true);
}

void SettingsPage::updateInterfaceData()
{
    const Updating updating(*this);
    for (OptionGroupRow *row : m_groups) {
        const Command command = row->group().command;
        row->showValue(deviceState.isKnown(command) ? std::optional(deviceState.value(command)) : std::nullopt);
    }
    for (const Slider &entry : m_sliderEntries) {
        const std::optional<Command> command = entry.choose ? entry.choose() : entry.spec.command;
        if (command)
            fillSlider(entry.widget, *command);
    }
}

void SettingsPage::updateControlText()
{
    m_texts.retranslate();
}
