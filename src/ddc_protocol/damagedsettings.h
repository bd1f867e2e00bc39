#pragma once

#include <QString>

struct WholeFile;

/// Keeps what a settings file holds beside it, as "<name>.bad", "<name>.bad2" to "<name>.bad9", before it is
/// overwritten; the ninth is given up for a newer one. What is kept already is not kept twice. A file that is too large
/// to be read whole goes there itself. False when it could not be kept.
bool keepDamaged(const QString &fileName, const WholeFile &damaged);
