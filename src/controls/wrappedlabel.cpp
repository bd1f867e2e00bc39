#include "controls/wrappedlabel.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextLayout>

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

} // namespace

int evenWidth(const QString &text, const QFont &font, int room)
{
    QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), font);
    const Lines whole = linesIn(layout, room);
    if (whole.count < 2 || whole.last * kShortLine >= room)
        return room;
    int least = room / 2;
    int most = room;
    while (least < most) {
        const int middle = (least + most) / 2;
        const Lines lines = linesIn(layout, middle);
        if (lines.count <= whole.count && lines.widest <= middle) // a long word may stand out
            most = middle;
        else
            least = middle + 1;
    }
    return most;
}

int WrappedLabel::evenWidth(int room)
{
    if (m_text != text() || m_font != font() || m_room != room) {
        m_text = text();
        m_font = font();
        m_room = room;
        m_even = ::evenWidth(m_text, m_font, m_room);
    }
    return m_even;
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
    lines.setWidth(std::min(evenWidth(room.width()) + 1, room.width())); // it is drawn by whole points
    if (side.testFlag(Qt::AlignHCenter))
        lines.moveCenter(room.center());
    else if (side.testFlag(Qt::AlignRight))
        lines.moveRight(room.right());
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, lines, int(side) | Qt::TextWordWrap, option.palette, isEnabled(), text(),
                          foregroundRole());
}
