#include "platform/virtual/rootscreen.h"

namespace platform {

struct RootPixels::Way
{
};

std::optional<WorkArea> rootWorkArea()
{
    return std::nullopt;
}

RootPixels::RootPixels() = default;
RootPixels::~RootPixels() = default;

bool RootPixels::copy(std::span<const ScreenPart>)
{
    return false;
}

} // namespace platform
