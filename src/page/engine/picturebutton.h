#pragma once

#include "page/engine/pagetable.h"

class QPushButton;

inline constexpr int kPictureButtonSide = 50;

/// Gives a button the look of a tile with a drawing of what the option is.
void dressPictureButton(QPushButton *button, DrawOption draw, int value);
