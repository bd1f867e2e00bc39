#pragma once

/// Whether a copy with administrator rights was started in this one's place, in the same folder: this process then
/// ends. False also when the user has the rights, when they were refused, and in the copy itself.
bool handedToElevatedCopy(int argc, char **argv);
