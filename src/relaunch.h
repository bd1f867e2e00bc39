#pragma once

class QString;

/// Starts a detached copy of the program with the same arguments, then ends this one, unless it ends already. False
/// when the copy could not be started: the log says so, and the program goes on as it was.
[[nodiscard]] bool relaunchAndQuit();

/// What the user is told then, translated.
QString notRestarted();
