#include "page/engine/pagetable.h"

#include "ddc_protocol/devicestate.h"

bool isOffered(const PanelSpec &panel, const DeviceState &state)
{
    return state.has(panel.needs) && !(panel.lacks && state.has(*panel.lacks));
}
