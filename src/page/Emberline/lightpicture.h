#pragma once

#include "page/Emberline/lightframe.h"

class QPainter;
class QRect;

/// Draws the monitor from behind, on a desk in front of a wall, in the light of its lamps.
void paintLightPicture(QPainter &painter, const QRect &area, const LightFrame &frame);
