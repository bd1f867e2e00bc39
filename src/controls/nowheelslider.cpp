#include "controls/nowheelslider.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QWheelEvent>

#include "controls/accessiblecontrol.h"
#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr int kHandle = 2 * NoWheelSlider::kGrooveInset;
constexpr int kGroove = 4;
constexpr int kHeight = 26;
const QColor kMintDark = Palette::kDeep;
const QColor kFilled = Palette::kMint;
const QColor kInside = Palette::kInk;

bool isStepKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}
} // namespace

NoWheelSlider::NoWheelSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    describeControlsToAssistiveSoftware();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void NoWheelSlider::setAccent(const QColor &accent)
{
    m_accent = accent;
    update();
}

void NoWheelSlider::setUnknown(bool unknown)
{
    m_unknown = unknown;
    update();
}

void NoWheelSlider::setUnit(const QString &pattern)
{
    m_unit = pattern;
}

QString NoWheelSlider::valueText() const
{
    if (m_unknown)
        return QObject::tr("unknown");
    const bool isShare = minimum() == 0 && maximum() == 100;
    QString text = !m_unit.isEmpty() ? m_unit : isShare ? QObject::tr("%1 %") : QObject::tr("%1 of %2");
    return text.replace(QLatin1String("%1"), QString::number(value()))
        .replace(QLatin1String("%2"), QString::number(maximum()));
}

void NoWheelSlider::moveAtOnce(int value)
{
    setSliderDown(true);
    setValue(value);
    setSliderDown(false);
}

QSize NoWheelSlider::sizeHint() const
{
    return QSize(240, kHeight);
}

QSize NoWheelSlider::minimumSizeHint() const
{
    return QSize(3 * kHandle, kHeight);
}

void NoWheelSlider::setWholeGroove(bool whole)
{
    m_wholeGroove = whole;
    update();
}

/// Where the handle's centre goes.
QRect NoWheelSlider::pathRect() const
{
    return QRect(kHandle / 2, (height() - kGroove) / 2, width() - kHandle, kGroove);
}

QRect NoWheelSlider::grooveRect() const
{
    const int further = m_wholeGroove ? kHandle / 2 : 0;
    return pathRect().adjusted(-further, 0, further, 0);
}

QPoint NoWheelSlider::handleCentre() const
{
    const QRect path = pathRect();
    const int offset = QStyle::sliderPositionFromValue(minimum(), maximum(), sliderPosition(), path.width());
    return QPoint(path.left() + offset, height() / 2);
}

int NoWheelSlider::valueAt(int x) const
{
    const QRect path = pathRect();
    return QStyle::sliderValueFromPosition(minimum(), maximum(), x - path.left(), path.width());
}

void NoWheelSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void NoWheelSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || minimum() == maximum()) {
        event->ignore();
        return;
    }
    const int x = event->position().toPoint().x();
    const int fromCentre = x - handleCentre().x();
    m_grabOffset = qAbs(fromCentre) <= kHandle / 2 ? fromCentre : 0;
    m_heldKey = 0;
    setSliderDown(true);
    setSliderPosition(valueAt(x - m_grabOffset));
    event->accept();
}

void NoWheelSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown() && event->buttons().testFlag(Qt::LeftButton))
        setSliderPosition(valueAt(event->position().toPoint().x() - m_grabOffset));
}

void NoWheelSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
    else
        event->ignore();
}

void NoWheelSlider::keyPressEvent(QKeyEvent *event)
{
    if (isStepKey(event->key())) {
        if (event->isAutoRepeat() && m_heldKey != event->key())
            return; // its hold was lost
        // Down before the step, so that whoever hears of the step knows that more may come.
        m_heldKey = event->key();
        setSliderDown(true);
    }
    QSlider::keyPressEvent(event);
}

void NoWheelSlider::keyReleaseEvent(QKeyEvent *event)
{
    if (event->isAutoRepeat() || event->key() != m_heldKey) {
        QSlider::keyReleaseEvent(event);
        return;
    }
    m_heldKey = 0;
    setSliderDown(false);
}

/// The toolkit's slider is released as it is disabled, and goes on following the mouse while it is hidden.
void NoWheelSlider::loseHold()
{
    if (!isSliderDown())
        return;
    m_heldKey = 0;
    {
        const QSignalBlocker quiet(this);
        setSliderDown(false);
    }
    Q_EMIT holdLost();
}

void NoWheelSlider::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        loseHold();
    QSlider::changeEvent(event);
}

/// A window that is minimised comes back, and the hand is on it still.
void NoWheelSlider::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        loseHold();
    QSlider::hideEvent(event);
}

void NoWheelSlider::focusInEvent(QFocusEvent *event)
{
    m_focusRing.follow(event);
    QSlider::focusInEvent(event);
    update();
}

void NoWheelSlider::focusOutEvent(QFocusEvent *event)
{
    m_focusRing.follow(event);
    if (!isEnabled())
        loseHold(); // the toolkit takes the focus from what it disables before it says so
    // The key's release will go to another widget.
    if (m_heldKey != 0) {
        m_heldKey = 0;
        setSliderDown(false);
    }
    QSlider::focusOutEvent(event);
    update();
}

void NoWheelSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGroove(painter);
    drawHandle(painter);
    m_focusRing.draw(painter, rect(), height() / 2.0);
}

void NoWheelSlider::drawGroove(QPainter &painter) const
{
    const QRectF groove = grooveRect();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(isEnabled() ? Palette::kGroove : Palette::kRestingGroove));
    painter.drawRoundedRect(groove, kGroove / 2.0, kGroove / 2.0);
    if (m_unknown)
        return;
    QRectF filled = groove;
    filled.setRight(handleCentre().x());
    QLinearGradient mint(filled.topLeft(), filled.topRight());
    mint.setColorAt(0.0, kMintDark);
    mint.setColorAt(1.0, kFilled);
    painter.setBrush(!isEnabled()         ? QBrush(QColor(Palette::kRestingMark))
                     : m_accent.isValid() ? QBrush(m_accent)
                                          : QBrush(mint));
    painter.drawRoundedRect(filled, kGroove / 2.0, kGroove / 2.0);
}

void NoWheelSlider::drawHandle(QPainter &painter) const
{
    QRect handle(0, 0, kHandle, kHandle);
    handle.moveTopLeft(handleCentre() - QPoint(kHandle / 2, kHandle / 2));
    const bool plain = !m_unknown && (!m_accent.isValid() || !isEnabled());
    const QString state = !isEnabled()                     ? QStringLiteral("disabled")
                          : m_focusRing.isShown()          ? QStringLiteral("focus")
                          : underMouse() || isSliderDown() ? QStringLiteral("hover")
                                                           : QString();
    const QString base = Pictures::kRoot + QStringLiteral("img/slider/handle");
    if (!plain || !Pictures::draw(painter, handle, Pictures::ofState(base, state)))
        drawRing(painter, handle);
}

void NoWheelSlider::drawRing(QPainter &painter, const QRect &handle) const
{
    QColor ring = !isEnabled() ? Palette::kRestingMark : m_unknown ? Palette::kEdge : Palette::kMint;
    if (isEnabled() && !m_unknown && m_accent.isValid())
        ring = m_accent;
    if (isEnabled() && (underMouse() || isSliderDown()))
        ring = ring.lighter(115);
    painter.setPen(QPen(ring, m_unknown ? 1.5 : 3.0));
    painter.setBrush(kInside);
    painter.drawEllipse(QRectF(handle).adjusted(2, 2, -2, -2));
}
