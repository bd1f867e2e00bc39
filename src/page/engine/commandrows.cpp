#include "page/engine/commandrows.h"

#include "ddc_protocol/commandnames.h"

OptionGroup groupOf(Command command, std::span<const Option> options, const char *help)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, options, name.needs, GroupLook::Buttons, help};
}

OptionGroup switchOf(Command command, std::span<const Option> halves)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, halves, name.needs, GroupLook::Switch};
}

SliderSpec sliderOf(Command command, int minimum, int maximum, SendOn sendOn, const char *help)
{
    const CommandName &name = nameOf(command);
    return {name.label, name.label, command, minimum, maximum, sendOn, Accent::Mint, name.needs, help};
}

PanelSpec panelOf(Command command, const char *icon, const char *widgetName, std::span<const Section> sections,
                  const char *help)
{
    const CommandName &name = nameOf(command);
    return {name.label, icon, widgetName, sections, name.needs, help};
}
