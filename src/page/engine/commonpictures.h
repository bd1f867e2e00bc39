#pragma once

#include "page/engine/panelpicture.h"

// What settings do to a picture that several pages have.
namespace commonpictures {

extern const PanelPicture kMotion, kResponse, kDimming, kHalo, kRange;

} // namespace commonpictures
