#pragma once

#include <QString>

#include "splitter/windowsplitter.h"

/// What became of a window, in a sentence.
QString splitWords(const SplitResult &result);
