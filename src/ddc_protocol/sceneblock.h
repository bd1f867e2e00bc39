#pragma once

/// Reads the block of an even scene mode in one attempt and keeps it in the snapshot, for reads in the background that
/// must not hold up others: about thirteen requests. False when the monitor did not tell it whole; then the snapshot is
/// as it was, and nothing else follows.
bool readSceneBlockOnce(int mode);
