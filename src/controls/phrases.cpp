#include "controls/phrases.h"

#include <algorithm>

#include <QTextBoundaryFinder>

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

} // namespace

QStringList phrasesOf(const QString &line)
{
    if (std::none_of(line.begin(), line.end(), isHiragana))
        return {};
    QStringList phrases;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, line);
    qsizetype begin = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        if (end < line.size() && (!endsPhrase(line[end - 1], line[end]) || QStringView(line).left(end).endsWith(u"= ")))
            continue;
        phrases.append(line.mid(begin, end - begin));
        begin = end;
    }
    return phrases;
}
