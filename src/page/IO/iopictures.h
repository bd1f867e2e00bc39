#pragma once

#include "page/engine/panelpicture.h"

// Which socket at the monitor's back is used.
namespace iopictures {

extern const PanelPicture kInput, kUsb;

} // namespace iopictures
