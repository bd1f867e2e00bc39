#include "page/engine/pagetable.h"

#include <algorithm>

#include <QObject>

#include "ddc_protocol/devicestate.h"

const Option *optionOf(const OptionGroup &group, int value)
{
    const auto found = std::ranges::find(group.options, value, &Option::value);
    return found == group.options.end() ? nullptr : &*found;
}

QString optionName(const Option &option)
{
    return QObject::tr(option.label).trimmed(); // on a button blanks may stand before it
}

bool isOffered(const PanelSpec &panel, const DeviceState &state)
{
    return state.has(panel.needs) && !(panel.lacks && state.has(*panel.lacks));
}
