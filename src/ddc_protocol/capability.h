#pragma once

#include <cstdint>

/// The bits of the capability word that the program looks at.
enum class Capability : std::uint16_t {
    LocalDimming = 1 << 0,
    HaloControl = 1 << 1,
    OledPanel = 1 << 2, ///< the care values are read
    ExtraScene = 1 << 3,
    MpcsMotion = 1 << 6, ///< the motion function is called MPCS, not DyDs, and has scenes of its own
    GameFunctions = 1 << 10,
};
