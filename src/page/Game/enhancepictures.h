#pragma once

#include "page/engine/panelpicture.h"

// What the picture enhancements that only one page has do to a picture.
namespace enhancepictures {

extern const PanelPicture kHdr, kColor, kContrast, kShadows, kResolution, kSync;

} // namespace enhancepictures
