#pragma once

#include <QtGlobal>

/// Marks a text of a table for translation in the context QObject. For .cpp files and the tables of menus/ only.
#define NAME(text) QT_TRANSLATE_NOOP("QObject", text)
