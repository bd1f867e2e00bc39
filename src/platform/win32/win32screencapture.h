#pragma once

#include "platform/screencapture.h"

namespace platform {

class Win32ScreenCapture final : public ScreenCapture
{
public:
    bool copy(std::span<const ScreenPart> parts) override;
};

} // namespace platform
