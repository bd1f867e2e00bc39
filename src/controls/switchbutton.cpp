#include "controls/switchbutton.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr QSize kSwitchSize(120, 38);
constexpr int kTextPixels = 18;
constexpr int kTextMargin = 6;
const QColor kActiveText(0x7f, 0xf7, 0xd4);
const QColor kOtherText = Palette::kError;
const QColor kSwitchDisabled = Palette::kDisabled;
} // namespace

SwitchButton::SwitchButton(QWidget *parent) : CheckedControl(parent), m_leftText(kTextPixels), m_rightText(kTextPixels)
{
    setFixedSize(kSwitchSize);
    updateTexts();
}

void SwitchButton::press()
{
    switchTo(!isChecked());
}

void SwitchButton::pressAt(const QPoint &position)
{
    // The exact centre belongs to the left half.
    switchTo(position.x() * 2 > width());
}

void SwitchButton::switchTo(bool checked)
{
    setChecked(checked);
    Q_EMIT sigChecked(isChecked());
}

void SwitchButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right)
        CheckedControl::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        switchTo(event->key() == Qt::Key_Right);
}

void SwitchButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        updateTexts();
    CheckedControl::changeEvent(event);
}

void SwitchButton::updateTexts()
{
    m_leftText.setText(QObject::tr("Off"));
    m_rightText.setText(QObject::tr("On"));
    update();
}

void SwitchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBackground(painter);
    const int half = width() / 2;
    const QRect left = QRect(0, 0, half, height()).adjusted(kTextMargin, 0, -kTextMargin, 0);
    const QColor active = isEnabled() ? kActiveText : kSwitchDisabled;
    const QColor other = isEnabled() ? kOtherText : kSwitchDisabled;
    m_leftText.draw(painter, left, Qt::AlignCenter, isChecked() ? other : active);
    m_rightText.draw(painter, left.translated(half, 0), Qt::AlignCenter, isChecked() ? active : other);
    drawFocus(painter, rect(), height() / 2.0);
}

void SwitchButton::drawBackground(QPainter &painter) const
{
    const QString state = !isEnabled()  ? QStringLiteral("disabled")
                          : isChecked() ? QStringLiteral("check")
                                        : QStringLiteral("uncheck");
    const bool drawn =
        Pictures::draw(painter, rect(), Pictures::ofState(Pictures::kRoot + QStringLiteral("img/switch"), state));
    const qreal radius = height() / 2.0;
    if (!drawn) {
        painter.setPen(QColor(Palette::kRim));
        painter.setBrush(QColor(Palette::kWell));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(Palette::kLit));
        const QRectF half(isChecked() ? width() / 2.0 : 3.0, 3.0, width() / 2.0 - 3.0, height() - 6.0);
        painter.drawRoundedRect(half, radius - 3, radius - 3);
    }
    if (isHovered() && isEnabled()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, 12));
        painter.drawRoundedRect(rect(), radius, radius);
    }
}
