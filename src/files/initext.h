#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

// What the keys and values of a settings file say, their escapes taken away. Any bytes are taken.

/// A key: letters beyond ASCII may stand as they are or as %XX or %UXXXX, a slash as a backslash.
QString iniKey(QByteArrayView bytes);

/// A value: texts between commas, in quotes or not; at least one. Not much more of them than @p most.
QStringList iniTexts(QByteArrayView bytes, qsizetype most);

/// Either of the two characters that end a line.
inline bool isIniLineEnd(char c)
{
    return c == '\r' || c == '\n';
}
