#pragma once

#include "platform/screencapture.h"

namespace platform {

class Win32ScreenCapture final : public ScreenCapture
{
public:
    bool copy(const QRect &area, std::span<std::uint32_t> pixels) override;
};

} // namespace platform
