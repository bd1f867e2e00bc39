#pragma once

/// Starts a detached copy of the program with the same arguments, then quits the event loop.
void relaunchAndQuit();
