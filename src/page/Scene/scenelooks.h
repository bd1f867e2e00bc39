#pragma once

#include "controls/testpicture.h"

/// How a mode shows a picture with the factory's parameters, for a drawing of it; @p mode is either half's value.
PictureLook sceneLook(int mode);
