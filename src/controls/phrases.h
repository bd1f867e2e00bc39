#pragma once

#include <QString>
#include <QStringList>

/// The parts of one line of text behind which a reader of Japanese expects it to be broken: each a word with what hangs
/// on it, rather than any letter. Nothing for a text without hiragana, whose words nothing tells apart.
QStringList phrasesOf(const QString &line);
