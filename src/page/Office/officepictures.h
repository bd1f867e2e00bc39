#pragma once

#include "page/engine/panelpicture.h"

// What each office aid lays over the screen.
namespace officepictures {

extern const PanelPicture kPaper, kAlignment, kRuler, kAlignmentAid, kComposition, kRest, kDualMode;

} // namespace officepictures
