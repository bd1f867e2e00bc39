#pragma once

#include <QtGlobal>

/// Marks a text of a table for translation in the context QObject. For .cpp files only.
#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)
