#pragma once

#include <cstdint>
#include <span>

/// Shows a flat frame on the accessory at once. Sends nothing when its length is not that of the matrix form. The first
/// chunk that fails ends the frame; a failure is logged only when the write before, of whatever frame, succeeded, and a
/// success only behind a failure. Safe from any thread, one at a time.
void sendLiveFrame(std::span<const std::int32_t> cells);

/// Begins the log anew, as if the last write had succeeded.
void resetLiveLatch();
