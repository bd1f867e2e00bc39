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
    : CaptionedControl(kCaptionPixels, parent), m_iconBase(iconBase)
{
    setFixedSize(kTabSize);
    setCaption(caption);
}

int TopTab::captionSize() const
{
    return captionSizeWithin(kCaptionRect.width());
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
    if (isChecked() && !Pictures::draw(painter, rect(), Pictures::kRoot + QStringLiteral("img/top_select.png")))
        painter.fillRect(rect().adjusted(16, height() - 3, -16, 0), kMarker);
    const QString state = isChecked() || isHovered() ? QStringLiteral("checked") : QString();
    Pictures::draw(painter, QRect((width() - kIconSide) / 2, kIconTop, kIconSide, kIconSide),
                   Pictures::ofState(m_iconBase, state));
    const QColor color = !isEnabled() ? kDisabledText : isChecked() ? kCheckedText : isHovered() ? kHoveredText : kText;
    drawCaption(painter, kCaptionRect, Qt::AlignCenter, color);
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
