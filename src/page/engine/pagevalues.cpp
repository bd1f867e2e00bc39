#include "page/engine/pagevalues.h"

#include <algorithm>
#include <utility>

#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagecontrols.h"
#include "platform/desk.h"

static constexpr platform::milliseconds kPatience{300}; // a value on its way for longer is marked

PageValues::PageValues(QObject &page, const PageControls &controls, Rules rules)
    : m_page(page), m_controls(controls), m_rules(std::move(rules))
{
}

void PageValues::fillAll() const
{
    for (OptionGroupRow *row : m_controls.groups())
        fill(row);
    for (const PageControls::Slider &entry : m_controls.sliderEntries()) {
        if (const std::optional<Command> command = entry.command())
            fill(entry.widget, *command);
    }
}

void PageValues::fill(Command command) const
{
    for (OptionGroupRow *row : m_controls.groups()) {
        if (row->group().command == command)
            fill(row);
    }
    for (const PageControls::Slider &entry : m_controls.sliderEntries()) {
        if (entry.command() == command)
            fill(entry.widget, command);
    }
}

void PageValues::fill(OptionGroupRow *row) const
{
    const Command command = *row->group().command;
    const Mark mark = markOf(command);
    const int value = deviceState.value(command);
    if (mark != Mark::Unconfirmed)
        row->showValue(mark != Mark::Unknown ? std::optional(value) : std::nullopt);
    row->setMark(mark == Mark::None && !isListed(command, value) ? Mark::Unlisted : mark);
}

/// A switch whose halves do not stand for the value may have its options in a row of their own.
bool PageValues::isListed(Command command, int value) const
{
    return std::ranges::any_of(m_controls.groups(), [&](const OptionGroupRow *row) {
        return row->group().command == command && row->canShow(value);
    });
}

void PageValues::fill(SliderWidget *slider, Command command) const
{
    if (slider->isHeld())
        return;
    const Mark mark = markOf(command);
    if (mark != Mark::Unknown && (mark != Mark::Unconfirmed || deviceState.isDoubted(command)))
        slider->setValue(deviceState.value(command));
    slider->setMark(mark);
}

Mark PageValues::markOf(Command command) const
{
    switch (deviceState.state(command)) {
    case ValueState::Known:
        break;
    case ValueState::Unknown:
        return m_rules.keepsContents() || deviceState.isDoubted(command) ? Mark::Unconfirmed : Mark::Unknown;
    case ValueState::Refused:
        return Mark::Refused;
    case ValueState::Pending: {
        platform::Clock &clock = platform::desk().clock();
        const qint64 since = deviceState.pendingSince(command).value_or(clock.now()).msecsTo(clock.now());
        if (since >= kPatience.count())
            return Mark::Waiting;
        clock.callLater(kPatience - platform::milliseconds(std::max<qint64>(since, 0)), &m_page,
                        [this, command] { m_rules.lookAgain(command); });
        break;
    }
    }
    return Mark::None;
}
