#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

// The bytes of a settings file, as the toolkit's own INI format writes them, but for three things: letter case is kept
// everywhere, keys are sorted on every system, and a value of a type other than text is not built from what a file
// says.

/// What a settings file holds, by key; the group stands before the last part of the key, with a slash.
/// A value is a text, a list of texts (commas without quotes, as somebody writes them by hand), or the bytes of a value
/// that the toolkit would make another type of: "@Variant(...)" and its kin. Those are kept as they stand in the file.
struct IniContent
{
    QMap<QString, QVariant> values;
    bool hasForeignLines = false; ///< some are neither a section, a comment nor a key with its value
};

/// The key as the toolkit's settings class knows it: without empty parts between slashes.
QString normalizedKey(const QString &key);

/// Lines of a file and texts between commas, all in all: sixteen thousand programs to follow.
inline constexpr qsizetype kMostIniParts = 50'000;

/// Takes any bytes, in time that grows with their number only. A file of more parts than that holds nothing but foreign
/// lines: reading it would hold up the start.
IniContent parseIni(const QByteArray &bytes);

/// The file that holds these values: texts, lists of texts, numbers, on/off, and bytes as parseIni gave them. Sections
/// and keys are sorted; keys without a group come first, under [General].
QByteArray composeIni(const QMap<QString, QVariant> &values, const QByteArray &lineEnd);
