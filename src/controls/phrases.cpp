#include "controls/phrases.h"

#include <algorithm>
#include <vector>

#include <QTextBoundaryFinder>

#include "controls/chinesewords.h"

namespace {

bool isHiragana(QChar letter)
{
    return letter >= QChar(0x3041) && letter <= QChar(0x309F);
}

/// お and ご stand before the word that they belong to.
bool beginsWord(QChar letter)
{
    return letter == u'お' || letter == u'ご';
}

/// Between the two verbs of 書き込む or 切り替える, and before the 方 of 見え方, no word ends.
bool isInsideCompound(QStringView line, qsizetype at)
{
    static const QString ends = QStringLiteral("いきしちみりぎじびえけせめれげべ");
    static const QString seconds = QStringLiteral("込取替換出合付上下直返続消離戻始抜外方");
    return at > 1 && line[at - 2].script() == QChar::Script_Han && ends.contains(line[at - 1]) &&
           seconds.contains(line[at]);
}

bool endsPhrase(QChar before, QChar after)
{
    if (before.isSpace() || before == u'、' || before == u'。')
        return true;
    if (isHiragana(after))
        return false;
    return isHiragana(before) ? !beginsWord(before) : after == u'「';
}

/// Chinese has no letters between its words that would tell where these end.
const QStringList &chineseWords()
{
    static const QStringList words = QString::fromUtf16(kChineseWords).split(u' ', Qt::SkipEmptyParts);
    return words;
}

/// The letters of a line before which it is within such a word.
using InWords = std::vector<bool>;

InWords findWords(const QString &line)
{
    InWords inWords(static_cast<std::size_t>(line.size()));
    for (const QString &word : chineseWords()) {
        for (qsizetype at = line.indexOf(word); at >= 0; at = line.indexOf(word, at + 1))
            std::fill_n(inWords.begin() + at + 1, word.size() - 1, true);
    }
    return inWords;
}

/// A quoted label is one word. The toolkit breaks no line beside such marks: other languages have them without blanks.
bool beginsQuote(QChar letter)
{
    return letter == u'“' || letter == u'「';
}

bool endsQuote(QChar letter)
{
    return letter == u'”' || letter == u'」';
}

bool isInsideQuote(QStringView line, qsizetype at)
{
    const QStringView before = line.left(at);
    const auto begin = std::find_if(before.rbegin(), before.rend(), beginsQuote);
    return begin != before.rend() && std::none_of(before.rbegin(), begin, endsQuote);
}

bool isBesideQuote(QStringView line, qsizetype at)
{
    return beginsQuote(line[at]) || (endsQuote(line[at - 1]) && line[at].isLetterOrNumber());
}

bool endsWord(QStringView line, qsizetype at, bool isBoundary)
{
    return (isBoundary || isBesideQuote(line, at)) && !isInsideQuote(line, at);
}

/// Chinese counts things up with the comma that Japanese pauses at.
bool isPause(QChar before, QChar after, bool isJapanese)
{
    if (QStringView(u".!?").contains(before))
        return after.isSpace();
    return QStringView(u"。！？，；：").contains(before) || (isJapanese && before == u'、');
}

} // namespace

QStringList clausesOf(const QString &line)
{
    const bool isJapanese = std::any_of(line.begin(), line.end(), isHiragana);
    QStringList clauses;
    qsizetype begin = 0;
    for (qsizetype end = 1; end < line.size(); ++end) {
        if (endsQuote(line[end]) || !isPause(line[end - 1], line[end], isJapanese) || isInsideQuote(line, end))
            continue;
        clauses.append(line.mid(begin, end - begin));
        begin = end;
    }
    clauses.append(line.mid(begin));
    return clauses;
}

QStringList phrasesOf(const QString &line)
{
    const bool isJapanese = std::any_of(line.begin(), line.end(), isHiragana);
    const bool isHan = std::any_of(line.begin(), line.end(), [](QChar c) { return c.script() == QChar::Script_Han; });
    const InWords inWords = isHan && !isJapanese ? findWords(line) : InWords();
    if (!isJapanese && std::find(inWords.begin(), inWords.end(), true) == inWords.end())
        return {};
    QStringList phrases;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, line);
    qsizetype begin = 0;
    for (qsizetype end = 1; end < line.size(); ++end) {
        finder.setPosition(end);
        const bool isBoundary = finder.isAtBoundary();
        const bool isWhole = isJapanese
                                 ? isBoundary && endsPhrase(line[end - 1], line[end]) && !isInsideCompound(line, end)
                                 : !inWords[static_cast<std::size_t>(end)] && endsWord(line, end, isBoundary);
        if (!isWhole || QStringView(line).left(end).endsWith(u"= "))
            continue;
        phrases.append(line.mid(begin, end - begin));
        begin = end;
    }
    phrases.append(line.mid(begin));
    return phrases;
}
