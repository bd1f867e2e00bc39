#include "controls/captions.h"

#include <algorithm>

#include <QFontMetrics>
#include <QHelpEvent>
#include <QWidget>

#include "controls/tooltips.h"

FittedCaption fitCaption(const QString &text, const QFont &font, int pixelSize, int width, int largest)
{
    FittedCaption fitted{font, text, false};
    const int smallest = (pixelSize * 3 + 3) / 4;
    for (int size = std::max(std::min(pixelSize, largest), smallest); size >= smallest; --size) {
        fitted.font.setPixelSize(size);
        if (QFontMetrics(fitted.font).horizontalAdvance(text) <= width)
            return fitted;
    }
    fitted.text = QFontMetrics(fitted.font).elidedText(text, Qt::ElideRight, qMax(0, width));
    fitted.elided = true;
    return fitted;
}

Caption::Caption(int pixelSize, const QString &text) : m_pixelSize(pixelSize), m_largest(pixelSize), m_text(text)
{
}

int Caption::sizeWithin(const QFont &font, int width) const
{
    return fitCaption(m_text, font, m_pixelSize, width).font.pixelSize();
}

void Caption::draw(QPainter &painter, const QRect &rect, Qt::Alignment flags, const QColor &color)
{
    const FittedCaption fitted = fitCaption(m_text, painter.font(), m_pixelSize, rect.width(), m_largest);
    m_elided = fitted.elided;
    painter.save();
    painter.setFont(fitted.font);
    painter.setPen(color);
    painter.drawText(rect, int(flags) | Qt::TextSingleLine, fitted.text);
    painter.restore();
}

bool Caption::showToolTip(const QHelpEvent *event, QWidget *owner) const
{
    if (!m_elided)
        return false;
    showTip(event->globalPos(), m_text, owner);
    return true;
}
