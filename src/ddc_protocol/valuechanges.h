#pragma once

#include "ddc_protocol/command.h"

/// Wishes a value and sends it at once, on the calling thread. True when the monitor took it.
bool sendValue(Command command, int value);

/// Sends a value that is wished already. True when the monitor took it; else the wish counts as refused, also when
/// nothing could be sent at all.
bool sendWish(Command command, int value);
