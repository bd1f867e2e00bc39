#pragma once

class QString;

/// Whether an environment variable tells the toolkit which plug-ins, styles or libraries to load, or from where. Case
/// does not count, as it does not to the system.
bool steersLoading(const QString &variable);

/// Takes out of a command line, with their values, the options that tell the toolkit the same.
void dropLoadingOptions(int &argc, char **argv);

/// Where a program has rights that its user's other programs have not, nothing is loaded but what lies in its own
/// folder and in the system's, whatever environment and command line say. To be called before the application object is
/// made.
void hardenLoading(int &argc, char **argv);
