#pragma once

#include "page/engine/panelpicture.h"

// What each picture enhancement does to a picture.
namespace enhancepictures {

extern const PanelPicture kMotion, kResponse, kHdr, kColor, kContrast, kShadows, kResolution, kDimming, kHalo, kSync;

} // namespace enhancepictures
