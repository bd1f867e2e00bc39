#pragma once

#include "ddc_protocol/command.h"

/// Whether a setting may leave the user before a picture, or a menu, that is of no use to him: then the way back is
/// offered for a while. Never the input: people go to another computer on purpose.
bool isRiskyChange(Command command, int value);
