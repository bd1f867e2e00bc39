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
    qreal last = 0; ///< how wide that one is
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

/// Lays phrases into lines of at most that width, each as many as there is room for.
QStringList laidInto(int width, const QStringList &phrases, const QFontMetricsF &metrics)
{
    QStringList lines;
    for (const QString &phrase : phrases) {
        const bool fits = !lines.isEmpty() && metrics.horizontalAdvance((lines.back() + phrase).trimmed()) <= width;
        if (fits)
            lines.back() += phrase;
        else
            lines.append(phrase);
    }
    return lines;
}

Lines measured(const QStringList &lines, const QFontMetricsF &metrics)
{
    Lines all{static_cast<int>(lines.size())};
    for (const QString &line : lines) {
        all.last = metrics.horizontalAdvance(line.trimmed());
        all.widest = std::max(all.widest, all.last);
    }
    return all;
}

} // namespace

int evenWidth(const QString &text, const QFont &font, int room)
{
    QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), font);
    return evenWidthOf([&layout](int width) { return linesIn(layout, width); }, room);
}

QString endedAtPhrases(const QString &text, const QFont &font, int room)
{
    const QStringList phrases = phrasesOf(text);
    if (phrases.isEmpty() || text.contains(u'\n'))
        return text;
    const QFontMetricsF metrics(font);
    QTextLayout layout(text, font);
    const auto linesAt = [&](int width) { return measured(laidInto(width, phrases, metrics), metrics); };
    const Lines whole = linesAt(room);
    if (whole.count > linesIn(layout, room).count || whole.widest > room)
        return text;
    return laidInto(evenWidthOf(linesAt, room), phrases, metrics).join(u'\n');
}

void WrappedLabel::wrapInto(int room)
{
    if (m_text == text() && m_font == font() && m_room == room)
        return;
    m_text = text();
    m_font = font();
    m_room = room;
    m_lines = endedAtPhrases(m_text, m_font, m_room);
    m_even = ::evenWidth(m_lines, m_font, m_room);
}

void WrappedLabel::paintEvent(QPaintEvent *event)
{
    const bool isRich = textFormat() == Qt::RichText || (textFormat() == Qt::AutoText && Qt::mightBeRichText(text()));
    if (isRich || !wordWrap())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    drawFrame(&painter);
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    QRect lines = contentsRect();
    const QRect room = lines;
    wrapInto(room.width());
    lines.setWidth(std::min(m_even + 1, room.width())); // it is drawn by whole points
    if (side.testFlag(Qt::AlignHCenter))
        lines.moveCenter(room.center());
    else if (side.testFlag(Qt::AlignRight))
        lines.moveRight(room.right());
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, lines, int(side) | Qt::TextWordWrap, option.palette, isEnabled(), m_lines,
                          foregroundRole());
}
