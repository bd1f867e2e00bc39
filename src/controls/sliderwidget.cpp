#include "controls/sliderwidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QWheelEvent>

#include "controls/captionlabel.h"
#include "controls/dash.h"
#include "controls/dress.h"
#include "controls/metrics.h"

namespace {
constexpr int kCaptionPixels = 15;
constexpr int kValueWidth = 40;
constexpr int kColourDot = 8;
constexpr qreal kDimmed = 0.35;
constexpr TextLook kValueLook{.colour = 0xffffffff, .pixels = kCaptionPixels, .disabled = 0xff444444};
} // namespace

SliderWidget::SliderWidget(const QString &name, int minimum, int maximum, QWidget *parent)
    : QWidget(parent), m_captionLabel(new CaptionLabel(name, kCaptionPixels, this)), m_slider(new NoWheelSlider(this)),
      m_valueLabel(new QLabel(this)), m_mark(new ValueMark(m_valueLabel))
{
    setObjectName(name);
    m_captionLabel->dressForRow();
    m_captionLabel->setBuddy(m_slider);
    m_slider->setObjectName(name + QStringLiteral("_slider"));
    m_slider->setRange(minimum, maximum);
    dressText(m_valueLabel, kValueLook);
    m_valueLabel->setFixedWidth(kValueWidth);
    m_valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    row->addWidget(m_captionLabel);
    row->addWidget(m_slider, 1);
    row->addWidget(m_valueLabel);
    setFocusProxy(m_slider);
    setCaption(name);
    showValue();

    connect(m_slider, &QSlider::valueChanged, this, &SliderWidget::onValueChanged);
    connect(m_slider, &QSlider::sliderReleased, this, &SliderWidget::onSliderReleased);
    connect(m_slider, &NoWheelSlider::holdLost, this, [this] { Q_EMIT holdLost(this->name()); });
}

QString SliderWidget::caption() const
{
    return m_captionLabel->text();
}

void SliderWidget::setCaption(const QString &caption, const QString &spoken)
{
    m_captionLabel->setText(caption);
    m_slider->setAccessibleName(spoken.isEmpty() ? caption : spoken);
    setAccessibleName(m_slider->accessibleName());
    showValue();
}

void SliderWidget::setCaptionWidth(int width)
{
    m_captionLabel->setFixedWidth(width - NoWheelSlider::kGrooveInset);
}

void SliderWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_mark->move(0, (height() - ValueMark::kSize) / 2);
}

void SliderWidget::setAccent(const QColor &accent)
{
    m_accent = accent;
    m_slider->setAccent(accent);
    update();
}

void SliderWidget::showAccent()
{
    m_showsAccent = true;
    m_captionLabel->setContentsMargins(kColourDot + metrics::kGap, 0, 0, 0);
    update();
}

void SliderWidget::hideCaption()
{
    m_captionLabel->hide();
    m_slider->setWholeGroove(true);
}

void SliderWidget::setHelp(const QString &sentence)
{
    m_help = sentence;
    describe();
}

void SliderWidget::paintEvent(QPaintEvent *)
{
    if (!m_showsAccent)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : kDimmed);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_accent);
    painter.drawEllipse(0, (height() - kColourDot) / 2, kColourDot, kColourDot);
}

void SliderWidget::setValue(int value)
{
    setUnknown(false);
    m_slider->setValue(value);
}

void SliderWidget::setUnknown(bool unknown)
{
    m_slider->setUnknown(unknown);
    showValue();
}

void SliderWidget::setMark(Mark mark)
{
    if (mark == Mark::Unknown)
        setUnknown(true);
    m_mark->setMark(mark == Mark::Unknown ? Mark::None : mark);
    describe();
}

void SliderWidget::setLock(const QString &reason)
{
    m_lock = reason;
    setEnabled(reason.isEmpty());
    describe();
}

/// Why it cannot be used matters more than what is known about its value.
void SliderWidget::describe()
{
    const QString text = m_lock.isEmpty() ? withHelp(markText(mark()), m_help) : m_lock;
    m_slider->setAccessibleDescription(text);
    setToolTip(text);
}

void SliderWidget::onValueChanged(int value)
{
    setUnknown(false);
    Q_EMIT sliderValueChanged(name(), value, false);
}

void SliderWidget::onSliderReleased()
{
    if (isUnknown())
        onValueChanged(value());
    Q_EMIT sliderValueChanged(name(), value(), true);
}

/// The wheel over the caption and the number counts as well. What the slider does not know cannot be stepped.
void SliderWidget::wheelEvent(QWheelEvent *event)
{
    if (!m_wheelSteps)
        return QWidget::wheelEvent(event);
    event->accept();
    if (isUnknown() || isHeld())
        return;
    m_wheelTurn += event->angleDelta().y();
    const int notches = m_wheelTurn / QWheelEvent::DefaultDeltasPerStep;
    m_wheelTurn -= notches * QWheelEvent::DefaultDeltasPerStep;
    const int wanted = qBound(m_slider->minimum(), value() + notches, m_slider->maximum());
    if (wanted == value())
        return;
    m_slider->moveAtOnce(wanted);
}

void SliderWidget::showValue()
{
    m_valueLabel->setText(isUnknown() ? kDash : QStringLiteral("%1").arg(value()));
    m_valueLabel->setAccessibleName(m_slider->valueText());
}
