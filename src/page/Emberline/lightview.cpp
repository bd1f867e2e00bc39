#include "page/Emberline/lightview.h"

#include <QPainter>

#include "page/Emberline/lightpicture.h"
#include "platform/desk.h"

static constexpr platform::milliseconds kFrameTime{50};

LightView::LightView(QWidget *parent) : QWidget(parent), m_begin(platform::desk().clock().now())
{
    describeControlsToAssistiveSoftware();
    setObjectName(QStringLiteral("lightView"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize LightView::sizeHint() const
{
    return {640, 440};
}

QSize LightView::minimumSizeHint() const
{
    return {320, 150};
}

void LightView::setLook(const LightLook &look)
{
    if (look == m_look)
        return;
    m_look = look;
    m_begin = platform::desk().clock().now();
    play();
}

void LightView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    play();
}

void LightView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    play();
}

void LightView::play()
{
    ++m_run;
    m_isPlaying = isVisible() && lightMoves(m_look) && platform::desk().displays().animatesControls();
    showMoment();
    if (m_isPlaying)
        lookLater();
}

void LightView::lookLater()
{
    platform::desk().clock().callLater(kFrameTime, this, [this, run = m_run] {
        if (run != m_run)
            return;
        showMoment();
        lookLater();
    });
}

void LightView::showMoment()
{
    const platform::milliseconds time(m_begin.msecsTo(platform::desk().clock().now()));
    const LightFrame frame = lightFrame(m_look, time);
    if (frame == m_frame)
        return;
    m_frame = frame;
    update();
}

void LightView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintLightPicture(painter, rect(), m_frame);
}
