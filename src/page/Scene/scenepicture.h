#pragma once

#include "page/engine/panelpicture.h"

/// How the custom half shows a picture with the values that it holds.
extern const PanelPicture kScenePicture;
