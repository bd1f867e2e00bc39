#pragma once

namespace platform {

/// Ends the program, however deep in dialogs it is. From now on nobody waits, the monitor is asked nothing more and no
/// failed attempt is repeated, so that all that is under way comes back within the request that is on the wire; then
/// the event loops end. A copy that was started in this one's place looks for it after a second. Interface thread.
void endProgram();

/// Whether the program ends. Any thread.
bool programEnds();

} // namespace platform
