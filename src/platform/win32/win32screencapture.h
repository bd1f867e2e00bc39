#pragma once

#include "platform/screencapture.h"

namespace platform {

/// gdi32's copies from the screen's device context, which spans all displays.
class Win32ScreenCapture final : public ScreenCapture
{
public:
    bool copy(std::span<const ScreenPart> parts) override;
};

} // namespace platform
