#pragma once

#include <QString>
#include <QStringList>

/// The parts of one line of text behind which a reader expects it to be broken, rather than at any letter. In Japanese
/// each is a word with what hangs on it, in Chinese a known word or one letter. Nothing for a text of other languages.
QStringList phrasesOf(const QString &line);

/// The sentences of one line of text, in Chinese and Japanese also their clauses: where it pauses.
QStringList clausesOf(const QString &line);
