#include "page/engine/settingspage.h"

#include <algorithm>

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/transport.h"
#include "page/engine/optiongrouprow.h"

static constexpr int kRetries = 10; // handed to the transport, which does not use it

SettingsPage::SettingsPage(CommandQueue &queue, QWidget *parent) : QLabel(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::sent, this, &SettingsPage::onSent);
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
    return Korvu_SetCommandVal(writeRow(command), static_cast<std::uint16_t>(value), kRetries);
}

void SettingsPage::onOptionClicked(QPushButton *button)
{
    const QString name = button->objectName();
    for (const OptionGroupRow *row : m_groups) {
        const OptionGroup &group = row->group();
        const QString prefix = QLatin1String(group.label) + QLatin1Char('_');
        if (!name.startsWith(prefix))
            continue;
        const auto option = std::find_if(group.options.begin(), group.options.end(), [&](const Option &candidate) {
            return name == prefix + QLatin1String(candidate.label);
        });
        // A name of the group without an option sends what the group holds once more.
        const int value = option != group.options.end() ? option->value : deviceState.value(group.command);
        deviceState.store(group.command, value);
        apply(m_before, group.command, value);
        send(group.command, value);
        apply(m_after, group.command, value);
        return;
    }
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
    const bool storesOnResult = m_results.contains(*command);
    if (!storesOnResult)
        deviceState.store(*command, value);
    if (released == (entry->spec.sendOn == SendOn::Release)) {
        m_queue.post(*command, value);
        apply(m_after, *command, value);
    }
}

void SettingsPage::onSent(Command command, int value, bool ok)
{
    if (const auto rule = m_results.find(command); rule != m_results.end())
        rule->second(value, ok);
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
