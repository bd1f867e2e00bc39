#include "page/engine/commandrows.h"

#include "ddc_protocol/commandnames.h"

OptionGroup groupOf(Command command, std::span<const Option> options, const char *help, const char *caption)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, options, name.needs, GroupLook::Buttons, help, nullptr, caption};
}

OptionGroup picturesOf(Command command, std::span<const Option> options, DrawOption draw, const char *caption)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, options, name.needs, GroupLook::Pictures, nullptr, draw, caption};
}

OptionGroup swatchesOf(Command command, std::span<const Option> options, const char *caption, const char *help)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, options, name.needs, GroupLook::Swatches, help, nullptr, caption};
}

OptionGroup switchOf(Command command, std::span<const Option> halves, const char *help)
{
    const CommandName &name = nameOf(command);
    return {name.label, command, halves, name.needs, GroupLook::Switch, help};
}

OptionGroup ownSwitch(const char *label, std::span<const Option> halves, const char *help)
{
    return {label, {}, halves, {}, GroupLook::Switch, help};
}

SliderSpec sliderOf(Command command, int minimum, int maximum, SendOn sendOn, const char *help, const char *caption)
{
    const CommandName &name = nameOf(command);
    return {name.label, caption ? caption : name.label, command, minimum, maximum, sendOn, Accent::Mint, name.needs,
            help};
}

PanelSpec panelOf(Command command, const char *icon, const char *widgetName, std::span<const Section> sections,
                  const char *help, const PanelPicture *picture)
{
    const CommandName &name = nameOf(command);
    return {name.label, icon, widgetName, sections, name.needs, help, picture};
}
