#include "controls/wrappedlabel.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextLayout>

#include "controls/phrases.h"

namespace {

/// A last line that is shorter than this share of the room looks like one too many.
constexpr int kShortLine = 4;

struct Lines
{
    int count = 0;
    qreal widest = 0;
    qreal last = 0;                    ///< how wide that one is
    qreal narrowest = QWIDGETSIZE_MAX; ///< of those before it
};

Lines linesIn(QTextLayout &layout, int width)
{
    Lines lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.last = line.naturalTextWidth();
        lines.widest = std::max(lines.widest, lines.last);
        ++lines.count;
    }
    layout.endLayout();
    return lines;
}

/// The text of the layout with its lines at that width.
QString brokenAt(int width, QTextLayout &layout)
{
    linesIn(layout, width);
    QStringList lines;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        lines.append(layout.text().mid(line.textStart(), line.textLength()).trimmed());
    }
    return lines.join(u'\n');
}

/// The least width that makes no more lines than the room does, or the room where its last line is long enough.
template <typename LinesAt> int evenWidthOf(LinesAt linesAt, int room)
{
    const Lines whole = linesAt(room);
    if (whole.count < 2 || whole.last * kShortLine >= room)
        return room;
    int least = room / 2;
    int most = room;
    while (least < most) {
        const int middle = (least + most) / 2;
        const Lines lines = linesAt(middle);
        if (lines.count <= whole.count && lines.widest <= middle) // a long word may stand out
            most = middle;
        else
            least = middle + 1;
    }
    return most;
}

/// Puts a part of a text behind the last of its lines. False, and nothing changed, where there is no room.
bool addTo(QStringList &lines, const QString &part, int width, const QFontMetricsF &metrics)
{
    if (lines.isEmpty() || metrics.horizontalAdvance((lines.back() + part).trimmed()) > width)
        return false;
    lines.back() += part;
    return true;
}

/// Lays phrases into lines of at most that width, each as many as there is room for.
QStringList laidInto(int width, const QStringList &phrases, const QFontMetricsF &metrics)
{
    QStringList lines;
    for (const QString &phrase : phrases) {
        if (!addTo(lines, phrase, width, metrics))
            lines.append(phrase);
    }
    return lines;
}

Lines measured(const QStringList &lines, const QFontMetricsF &metrics)
{
    Lines all{static_cast<int>(lines.size())};
    for (const QString &line : lines) {
        if (all.widest > 0)
            all.narrowest = std::min(all.narrowest, all.last);
        all.last = metrics.horizontalAdvance(line.trimmed());
        all.widest = std::max(all.widest, all.last);
    }
    return all;
}

/// Lays clauses into lines. One that is wider than a line has lines of its own, by its phrases.
QStringList laidClauses(int width, const QStringList &clauses, const QFontMetricsF &metrics)
{
    QStringList lines;
    for (const QString &clause : clauses) {
        if (addTo(lines, clause, width, metrics))
            continue;
        const bool fits = metrics.horizontalAdvance(clause.trimmed()) <= width;
        const QStringList phrases = fits ? QStringList() : phrasesOf(clause);
        lines += phrases.isEmpty() ? QStringList{clause} : laidInto(width, phrases, metrics);
    }
    return lines;
}

/// Whether several lines are no more than that many, none of them stands out, and none looks like one too many.
bool isWellLaid(const Lines &lines, int room, int most)
{
    return lines.count > 1 && lines.count <= most && lines.widest <= room && 2 * lines.narrowest >= lines.widest &&
           lines.last * kShortLine >= room;
}

bool isWrapped(const QLabel &label)
{
    const bool isRich =
        label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    return !isRich && label.wordWrap();
}

QString joined(const QStringList &lines)
{
    QStringList trimmed;
    for (const QString &line : lines)
        trimmed.append(line.trimmed());
    return trimmed.join(u'\n');
}

int heightOf(const QString &lines, int room, const QFont &font)
{
    return QFontMetrics(font).boundingRect(QRect(0, 0, room, QWIDGETSIZE_MAX), Qt::TextWordWrap, lines).height();
}

} // namespace

/// The dot between two parts is dropped where a line ends between them.
QString evenLines(const QString &text, const QFont &font, int room, int more)
{
    QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), font);
    const auto wordsAt = [&layout](int width) { return linesIn(layout, width); };
    const QFontMetricsF metrics(font);
    const bool isOneLine = !text.contains(u'\n');
    const QStringList phrases = isOneLine ? phrasesOf(text) : QStringList();
    const auto phrasesAt = [&](int width) { return measured(laidInto(width, phrases, metrics), metrics); };
    const Lines ofWords = wordsAt(room);
    const Lines ofPhrases = phrasesAt(room);
    const bool hasPhrases = !phrases.isEmpty() && ofPhrases.count <= ofWords.count + more && ofPhrases.widest <= room;
    const QStringList clauses = laidClauses(room, isOneLine ? clausesOf(text) : QStringList(), metrics);
    if (isWellLaid(measured(clauses, metrics), room, hasPhrases ? ofPhrases.count : ofWords.count))
        return joined(clauses);
    if (hasPhrases)
        return joined(laidInto(evenWidthOf(phrasesAt, room), phrases, metrics));
    const int even = evenWidthOf(wordsAt, room);
    if (even == room && !text.contains(u'·'))
        return text;
    return brokenAt(even, layout).replace(QStringLiteral(" ·\n"), QStringLiteral("\n"));
}

const QString &LabelLines::linesIn(int room, const QLabel &label)
{
    if (m_text != label.text() || m_font != label.font() || m_room != room) {
        m_text = label.text();
        m_font = label.font();
        m_room = room;
        m_lines = evenLines(m_text, m_font, m_room, 1);
    }
    return m_lines;
}

int LabelLines::heightForWidth(int width, const QLabel &label)
{
    if (!isWrapped(label))
        return 0;
    const QMargins margins = label.contentsMargins();
    const int room = width - margins.left() - margins.right() - std::max(label.indent(), 0);
    return heightOf(linesIn(room, label), room, label.font()) + margins.top() + margins.bottom();
}

bool LabelLines::draw(QLabel &label)
{
    if (!isWrapped(label))
        return false;
    QPainter painter(&label);
    const Qt::Alignment side = QStyle::visualAlignment(label.layoutDirection(), label.alignment());
    QRect room = label.contentsRect();
    if (side & Qt::AlignLeft)
        room.setLeft(room.left() + std::max(label.indent(), 0));
    QString lines = linesIn(room.width(), label);
    if (heightOf(lines, room.width(), label.font()) > room.height()) // somebody else has set its height
        lines = evenLines(label.text(), label.font(), room.width());
    QStyleOption option;
    option.initFrom(&label);
    label.style()->drawItemText(&painter, room, int(side) | Qt::TextWordWrap, option.palette, label.isEnabled(), lines,
                                label.foregroundRole());
    return true;
}

int WrappedLabel::heightForWidth(int width) const
{
    return std::max(QLabel::heightForWidth(width), m_lines.heightForWidth(width, *this));
}

void WrappedLabel::paintEvent(QPaintEvent *event)
{
    if (!m_lines.draw(*this))
        QLabel::paintEvent(event);
}
