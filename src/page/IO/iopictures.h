#pragma once

#include "page/engine/panelpicture.h"

// Which socket at the monitor's back is used, what it gives power to, and how soon the picture is there.
namespace iopictures {

extern const PanelPicture kInput, kUsb, kUsbPower, kQuickBoot, kCec;

} // namespace iopictures
