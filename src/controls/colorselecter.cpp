#include "controls/colorselecter.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"
#include "controls/tooltips.h"

namespace {
constexpr int kSwatch = 28;
constexpr int kHighlight = 36;
constexpr int kAround = (kHighlight - kSwatch) / 2; // of the highlight, on each side
constexpr int kStep = 44;
} // namespace

ColorSelecter::ColorSelecter(const QStringList &swatchPictures, QWidget *parent)
    : PaintedControl(parent), m_pictures(swatchPictures)
{
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ColorSelecter::setSelectedIndex(int index)
{
    m_selected = index >= 0 && index < count() ? index : -1;
    update();
}

QRect ColorSelecter::swatchRect(int index) const
{
    return m_rects.value(index);
}

void ColorSelecter::setSwatchNames(const QStringList &names)
{
    m_names = names;
}

QString ColorSelecter::valueText() const
{
    return m_names.value(m_selected, QObject::tr("unknown"));
}

QSize ColorSelecter::sizeHint() const
{
    return QSize(count() * kStep, kHighlight + 4);
}

QSize ColorSelecter::minimumSizeHint() const
{
    return QSize(count() * (kHighlight + 2), kHighlight + 4);
}

int ColorSelecter::indexAt(const QPoint &position) const
{
    for (int i = 0; i < m_rects.size(); ++i) {
        if (m_rects[i].contains(position))
            return i;
    }
    return -1;
}

void ColorSelecter::setHoveredIndex(int index)
{
    if (m_hoveredIndex == index)
        return;
    m_hoveredIndex = index;
    setAccessibleDescription(m_names.value(index));
    update();
    Q_EMIT sigHovered(index);
}

void ColorSelecter::select(int index)
{
    if (index < 0 || index >= count())
        return;
    setSelectedIndex(index);
    Q_EMIT sigClicked(index);
}

void ColorSelecter::press()
{
    select(m_hoveredIndex);
}

void ColorSelecter::pressAt(const QPoint &position)
{
    select(indexAt(position));
}

bool ColorSelecter::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString name = m_names.value(indexAt(help->pos()));
        if (!name.isEmpty()) {
            showTip(help->globalPos(), name, this);
            return true;
        }
    }
    return PaintedControl::event(event);
}

void ColorSelecter::keyPressEvent(QKeyEvent *event)
{
    const bool forward = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool back = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if ((forward || back) && count() > 0)
        setHoveredIndex(qBound(0, m_hoveredIndex + (forward ? 1 : -1), count() - 1));
    else
        PaintedControl::keyPressEvent(event);
}

void ColorSelecter::mouseMoveEvent(QMouseEvent *event)
{
    setHoveredIndex(indexAt(event->position().toPoint()));
}

void ColorSelecter::leaveEvent(QEvent *event)
{
    setHoveredIndex(-1);
    PaintedControl::leaveEvent(event);
}

void ColorSelecter::focusInEvent(QFocusEvent *event)
{
    PaintedControl::focusInEvent(event);
    // Space right after Tab must have a swatch to act on.
    if (event->reason() != Qt::MouseFocusReason && m_hoveredIndex < 0)
        setHoveredIndex(count() > 0 ? qMax(0, m_selected) : -1);
}

void ColorSelecter::focusOutEvent(QFocusEvent *event)
{
    PaintedControl::focusOutEvent(event);
    setHoveredIndex(-1);
}

void ColorSelecter::resizeEvent(QResizeEvent *)
{
    m_rects.clear();
    const int step = count() > 0 ? qMin(kStep, width() / count()) : kStep;
    for (int i = 0; i < count(); ++i)
        m_rects.append(QRect(i * step + kAround, (height() - kSwatch) / 2, kSwatch, kSwatch));
}

void ColorSelecter::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < m_rects.size(); ++i)
        drawSwatch(painter, i);
    if (!m_rects.isEmpty())
        drawFocus(painter, m_rects.first().united(m_rects.last()).adjusted(-kAround, -kAround, kAround, kAround));
}

void ColorSelecter::drawSwatch(QPainter &painter, int index) const
{
    const QRect swatch = m_rects[index];
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setOpacity(isEnabled() ? 1.0 : 0.35);
    if (!Pictures::draw(painter, swatch, m_pictures[index])) {
        // Without a picture the place in the row gives the hue.
        painter.setBrush(QColor::fromHsv(360 * index / count(), 160, 220));
        painter.drawEllipse(swatch);
    }
    if (index == m_selected || (index == m_hoveredIndex && isEnabled())) {
        QRect highlight(0, 0, kHighlight, kHighlight);
        highlight.moveCenter(swatch.center());
        // The swatch that is only pointed at stays behind the selected one.
        painter.setOpacity(index == m_selected ? painter.opacity() : 0.55);
        if (!Pictures::draw(painter, highlight, Pictures::kRoot + QStringLiteral("img/swatch/highlight.png"))) {
            painter.setPen(QPen(QColor(Palette::kMint), 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(highlight.adjusted(1, 1, -1, -1));
        }
    }
    painter.restore();
}
