#pragma once

#include "page/engine/panelpicture.h"

/// What the functions that spare the panel do on its screen.
namespace carepictures {

extern const PanelPicture kPixelShift;
extern const PanelPicture kStillPicture;
extern const PanelPicture kStaticIcon;
extern const PanelPicture kTaskbar;
extern const PanelPicture kBoundary;
extern const PanelPicture kIsp;

} // namespace carepictures
