#pragma once

#include "page/engine/panelpicture.h"

// What the monitor's own settings look like.
namespace systempictures {

extern const PanelPicture kAudio, kLanguage, kOsd, kPowerSaving, kPowerLed, kGravity, kMenuLock;

} // namespace systempictures
