#include "platform/virtual/rootscreen.h"

std::optional<platform::WorkArea> platform::rootWorkArea()
{
    return std::nullopt;
}
