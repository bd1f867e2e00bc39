#include "ddc_protocol/valuechanges.h"
#include "ddc_protocol/commandtable.h"

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"

bool sendValue(Command command, int value)
{
    deviceState.wish(command, value);
    return sendWish(command, value);
}

bool sendWish(Command command, int value)
{
    if (Korvu_SetCommandVal(writeRow(command), static_cast<std::uint16_t>(value), kRetryCount))
        return true;
    deviceState.refused(command, value); // commands may be suspended: then nobody else says so
    return false;
}
