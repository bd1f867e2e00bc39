#include "controls/captionlabel.h"

#include <algorithm>

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOption>

#include "controls/captions.h"
#include "controls/dress.h"
#include "controls/palette.h"
#include "controls/tooltips.h"

namespace {
constexpr int kPlateSide = 6; // of the plate, on either side of the text
constexpr int kPlateRadius = 4;

QFont sized(QFont font, int pixelSize)
{
    font.setPixelSize(pixelSize);
    return font;
}
} // namespace

CaptionLabel::CaptionLabel(const QString &text, int pixelSize, QWidget *parent)
    : QLabel(text, parent), m_pixelSize(pixelSize), m_largest(pixelSize)
{
    setTextFormat(Qt::PlainText);
}

int CaptionLabel::captionSize() const
{
    const QMargins margins = contentsMargins();
    return fitCaption(text(), font(), m_pixelSize, maximumWidth() - margins.left() - margins.right()).font.pixelSize();
}

void CaptionLabel::setCaptionSize(int pixels)
{
    m_largest = pixels;
    update();
}

void CaptionLabel::dressForRow()
{
    dressText(this, {.colour = 0xffffffff, .disabled = 0xff000000});
    m_isForRow = true;
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

    const QRect room = contentsRect();
    const FittedCaption fitted = fitCaption(text(), font(), m_pixelSize, room.width(), m_largest);
    m_elided = fitted.elided;
    const bool isOnPlate = m_isForRow && !isEnabled() && !text().isEmpty();
    const QRect place =
        isOnPlate ? drawPlate(painter, room, QFontMetrics(fitted.font).horizontalAdvance(fitted.text)) : room;
    painter.setFont(fitted.font);
    painter.setPen(option.palette.color(foregroundRole()));
    painter.drawText(place, int(alignment()) | Qt::TextSingleLine, fitted.text);
}

QRect CaptionLabel::drawPlate(QPainter &painter, const QRect &room, int width) const
{
    QRect plate(0, 0, std::min(width + 2 * kPlateSide, room.width()), m_pixelSize + 2 * kPlateSide);
    plate.moveCenter(room.center());
    plate.moveLeft(room.left());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Palette::kRestingPlate));
    painter.drawRoundedRect(plate, kPlateRadius, kPlateRadius);
    painter.restore();
    return room.adjusted(std::max(plate.width() - width, 0) / 2, 0, 0, 0);
}
