#include "controls/phrases.h"

#include <algorithm>

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

bool isInsideWord(const QString &line, qsizetype at)
{
    return std::ranges::any_of(chineseWords(), [&](const QString &word) {
        const qsizetype begin = std::max<qsizetype>(at - word.size() + 1, 0);
        const qsizetype found = line.indexOf(word, begin);
        return found >= 0 && found < at;
    });
}

bool hasWord(const QString &line)
{
    return std::ranges::any_of(chineseWords(), [&line](const QString &word) { return line.contains(word); });
}

} // namespace

QStringList phrasesOf(const QString &line)
{
    const bool isJapanese = std::any_of(line.begin(), line.end(), isHiragana);
    if (!isJapanese && !hasWord(line))
        return {};
    QStringList phrases;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, line);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        const bool isWhole =
            isJapanese ? end == line.size() || endsPhrase(line[end - 1], line[end]) : !isInsideWord(line, end);
        if (end < line.size() && (!isWhole || QStringView(line).left(end).endsWith(u"= ")))
            continue;
        phrases.append(line.mid(begin, end - begin));
        begin = end;
    }
    return phrases;
}
