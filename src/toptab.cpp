#include "toptab.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"

namespace {

constexpr QSize kTabSize(104, 72);
constexpr int kIconTop = 14;
constexpr int kIconSide = 22;
constexpr QRect kCaptionRect(2, 40, 100, 24);
constexpr int kCaptionPixels = 15;
const QColor kText = Palette::kDim;
const QColor kHoveredText = Palette::kBright;
const QColor kCheckedText = Palette::kText;
const QColor kDisabledText = Palette::kDisabled;
const QColor kMarker = Palette::kSignal;

} // namespace

TopTab::TopTab(const QString &iconBase, const QString &caption, QWidget *parent)
    : PaintedControl(parent), m_iconBase(iconBase), m_caption(kCaptionPixels)
{
    setFixedSize(kTabSize);
    setCaption(caption);
}

void TopTab::setChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    update();
    announceState(this);
}

void TopTab::setCaption(const QString &caption)
{
    m_caption.setText(caption);
    setAccessibleName(caption);
    update();
}

int TopTab::captionSize() const
{
    return m_caption.sizeWithin(font(), kCaptionRect.width());
}

void TopTab::setCaptionSize(int pixels)
{
    m_caption.setLargest(pixels);
    update();
}

void TopTab::press()
{
    if (isEnabled())
        Q_EMIT clicked();
}

void TopTab::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.6);
    if (m_checked && !Pictures::draw(painter, rect(), Pictures::kRoot + QStringLiteral("img/top_select.png")))
        painter.fillRect(rect().adjusted(16, height() - 3, -16, 0), kMarker);
    const QString state = m_checked || isHovered() ? QStringLiteral("checked") : QString();
    Pictures::draw(painter, QRect((width() - kIconSide) / 2, kIconTop, kIconSide, kIconSide),
                   Pictures::ofState(m_iconBase, state));
    const QColor color = !isEnabled() ? kDisabledText : m_checked ? kCheckedText : isHovered() ? kHoveredText : kText;
    m_caption.draw(painter, kCaptionRect, Qt::AlignCenter, color);
    drawFocus(painter, rect().adjusted(2, 4, -2, -6), 8.0);
}

TopWindowButton::TopWindowButton(const QString &picture, QWidget *parent) : PaintedControl(parent), m_picture(picture)
{
    setFixedSize(40, 40);
}

void TopWindowButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Pictures::draw(painter, rect(), Pictures::ofState(m_picture, isHovered() ? QStringLiteral("h") : QString()));
    drawFocus(painter, rect());
}
