#include "controls/captionlabel.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOption>

#include "controls/captions.h"
#include "controls/tooltips.h"

namespace {
QFont sized(QFont font, int pixelSize)
{
    font.setPixelSize(pixelSize);
    return font;
}
} // namespace

CaptionLabel::CaptionLabel(const QString &text, int pixelSize, QWidget *parent)
    : QLabel(text, parent), m_pixelSize(pixelSize)
{
    setTextFormat(Qt::PlainText);
}

QSize CaptionLabel::sizeHint() const
{
    const QFontMetrics metrics(sized(font(), m_pixelSize));
    const QMargins margins = contentsMargins();
    return QSize(metrics.horizontalAdvance(text()), metrics.height()).grownBy(margins);
}

QSize CaptionLabel::minimumSizeHint() const
{
    // Whatever the text, a layout may squeeze the label: it shrinks and elides then.
    return QSize(m_pixelSize, sizeHint().height());
}

bool CaptionLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_elided) {
        showTip(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

void CaptionLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const FittedCaption fitted = fitCaption(text(), font(), m_pixelSize, contentsRect().width());
    m_elided = fitted.elided;
    painter.setFont(fitted.font);
    painter.setPen(option.palette.color(foregroundRole()));
    painter.drawText(contentsRect(), int(alignment()) | Qt::TextSingleLine, fitted.text);
}
