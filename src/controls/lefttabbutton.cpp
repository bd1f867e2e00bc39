#include "controls/lefttabbutton.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr QSize kEntrySize(216, 48);
constexpr int kPlateEdge = 1;    // above and below its plate, so that those of neighbours do not touch
constexpr int kLeastHeight = 36; // in a bar of many entries on a small screen
constexpr int kIconLeft = 19;
constexpr int kIconSide = 24;
constexpr int kCaptionLeft = 51;
constexpr int kCaptionRightMargin = 6;
constexpr int kEntryPixels = 19;
const QColor kEntryNormal = Palette::kSoft;
const QColor kEntryChecked = Palette::kText;
const QColor kEntryDisabled = Palette::kDisabled;
} // namespace

LeftTabButton::LeftTabButton(const QString &iconBase, const QString &caption, QWidget *parent)
    : CaptionedControl(kEntryPixels, parent), m_iconBase(iconBase)
{
    setFixedWidth(kEntrySize.width());
    setMaximumHeight(kEntrySize.height());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
    setCaption(caption);
}

QSize LeftTabButton::sizeHint() const
{
    return kEntrySize;
}

QSize LeftTabButton::minimumSizeHint() const
{
    return {kEntrySize.width(), kLeastHeight};
}

void LeftTabButton::setChecked(bool checked)
{
    if (m_selectable)
        CaptionedControl::setChecked(checked);
}

void LeftTabButton::setSelectable(bool selectable)
{
    if (m_selectable == selectable)
        return;
    m_selectable = selectable;
    update();
    announceState(this);
}

void LeftTabButton::setLock(const QString &reason)
{
    setToolTip(reason);
    setAccessibleDescription(reason);
}

int LeftTabButton::captionSize() const
{
    return captionSizeWithin(kEntrySize.width() - kCaptionLeft - kCaptionRightMargin);
}

void LeftTabButton::press()
{
    if (!m_selectable)
        return;
    setChecked(true);
    Q_EMIT clicked();
}

void LeftTabButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBackground(painter);
    drawIcon(painter);
    const bool usable = isEnabled() && m_selectable;
    const QColor color = !usable ? kEntryDisabled : isChecked() ? kEntryChecked : kEntryNormal;
    const QRect textRect = rect().adjusted(kCaptionLeft, 0, -kCaptionRightMargin, 0);
    drawCaption(painter, textRect, Qt::AlignLeft | Qt::AlignVCenter, color);
    drawFocus(painter, plate(), 8.0);
}

QRect LeftTabButton::plate() const
{
    return rect().adjusted(0, kPlateEdge, 0, -kPlateEdge);
}

void LeftTabButton::drawBackground(QPainter &painter) const
{
    const bool hovered = isHovered() && isEnabled() && m_selectable;
    const QString state = isChecked() ? QStringLiteral("checked")
                          : hovered   ? QStringLiteral("hover")
                                      : QStringLiteral("normal");
    if (Pictures::draw(painter, plate(), Pictures::ofState(Pictures::kRoot + QStringLiteral("img/left/tab"), state)))
        return;
    if (!isChecked() && !hovered)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(isChecked() ? Palette::kLit : Palette::kField));
    painter.drawRoundedRect(plate(), 8, 8);
}

void LeftTabButton::drawIcon(QPainter &painter) const
{
    const QRect icon(kIconLeft, (height() - kIconSide) / 2, kIconSide, kIconSide);
    const bool usable = isEnabled() && m_selectable;
    const QString state = !usable ? QStringLiteral("disabled") : isChecked() ? QStringLiteral("checked") : QString();
    if (Pictures::draw(painter, icon, Pictures::ofState(m_iconBase, state)) ||
        Pictures::draw(painter, icon, Pictures::ofState(m_iconBase)))
        return;
    painter.setPen(QPen(usable ? kEntryNormal : kEntryDisabled, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(icon.adjusted(4, 4, -4, -4));
}
