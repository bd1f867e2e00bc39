#include "statuscard.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "controls/announcer.h"
#include "controls/dash.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"

namespace {

constexpr int kNamePixels = 15;
constexpr int kStatePixels = 13;
constexpr qreal kRadius = 8;
constexpr int kStripe = 3; // at the left, in the colour of the state
constexpr int kLeft = 16;
constexpr int kNameTop = 10;
constexpr int kStateTop = 34;
constexpr int kLine = 22;
constexpr int kRight = 8;
constexpr int kRetryTop = kStateTop + kLine + metrics::kGap;

const char *const kRetryStyle =
    "QPushButton { color: @mint; background: transparent; border: 1px solid @edge; border-radius: 6px;"
    " outline: none; }"
    "QPushButton:hover { background-color: @field; }QPushButton:focus { border-color: @mint; }";

} // namespace

StatusCard::StatusCard(QWidget *parent)
    : QLabel(parent), m_name(kNamePixels), m_state(kStatePixels), m_retry(new QPushButton(this))
{
    setObjectName(QStringLiteral("status"));
    m_retry->setObjectName(QStringLiteral("retry"));
    m_retry->setFont(noteFont);
    m_retry->setFocusPolicy(Qt::StrongFocus);
    m_retry->setStyleSheet(Palette::styled(QString::fromLatin1(kRetryStyle)));
    m_retry->hide();
    connect(m_retry, &QPushButton::clicked, this, &StatusCard::retryWanted);
}

void StatusCard::tell(const MonitorStatus &status)
{
    m_status = status;
    m_name.setText(status.name.isEmpty() ? kDash : status.name);
    m_state.setText(status.state);
    const QString said = status.name + QLatin1Char(' ') + status.state;
    if (said != accessibleName())
        Announcer::say(said.trimmed());
    setAccessibleName(said);
    m_retry->setText(QObject::tr("Retry"));
    m_retry->setToolTip(QObject::tr("Look for the monitor again"));
    m_retry->setGeometry(kLeft, kRetryTop, width() - 2 * kLeft, metrics::kControlHeight);
    if (status.isGood && m_retry->hasFocus())
        setFocus(Qt::TabFocusReason); // a press too many would else reach what comes behind
    m_retry->setVisible(!status.isGood);
    update();
}

int StatusCard::neededHeight() const
{
    return m_retry->isHidden() ? kRetryTop : kRetryTop + metrics::kControlHeight + metrics::kGap;
}

/// A long name is whole in its tip.
bool StatusCard::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_name.showToolTip(static_cast<QHelpEvent *>(event), this))
        return true;
    return QLabel::event(event);
}

void StatusCard::followFocus(const QFocusEvent *event)
{
    m_focusRing.follow(event);
    update();
}

void StatusCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath card;
    card.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    painter.fillPath(card, QColor(Palette::kCard));
    painter.save();
    painter.setClipPath(card);
    painter.fillRect(QRect(0, 0, kStripe, height()), QColor(m_status.isGood ? Palette::kSignal : Palette::kError));
    painter.restore();
    painter.setPen(QColor(Palette::kHairline));
    painter.drawPath(card);
    const int room = width() - kLeft - kRight;
    m_name.draw(painter, QRect(kLeft, kNameTop, room, kLine), Qt::AlignLeft | Qt::AlignVCenter, Palette::kText);
    m_state.draw(painter, QRect(kLeft, kStateTop, room, kLine), Qt::AlignLeft | Qt::AlignVCenter, Palette::kDim);
    m_focusRing.draw(painter, rect(), kRadius);
}
