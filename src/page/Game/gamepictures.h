#pragma once

#include "page/engine/panelpicture.h"

// What each game aid looks like on the drawn monitor.
namespace gamepictures {

extern const PanelPicture kRush, kCrosshair, kHawkEye, kNightVision, kRefreshRate, kStopwatch, kGameTime,
    kMovingCrosshair, kFocusDimming, kDualMode;

/// A crosshair's shape on its button.
void drawShape(QPainter &painter, const QRectF &button, int shape);

} // namespace gamepictures
