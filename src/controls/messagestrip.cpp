#include "controls/messagestrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "controls/announcer.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"

namespace {

constexpr qreal kStripRadius = 8;
constexpr int kSign = 18; // the circle before the text
constexpr int kSignLeft = 13;
constexpr int kTextLeft = 40;
constexpr int kBelow = metrics::kGap; // which comes and goes with the strip
constexpr char16_t kActionStyle[] =
    u"QPushButton { color: @mint; background: transparent; border: 1px solid transparent; border-radius: 6px;"
    " padding: 0 12px; outline: none; }"
    "QPushButton:hover { background-color: rgba(123, 250, 219, 26); }"
    "QPushButton:focus { border-color: @mint; }";

struct Colors
{
    QColor ground;
    QColor sign;
    QColor text;
};

Colors colorsOf(MessageStrip::Tone tone)
{
    if (tone == MessageStrip::Tone::Refusal)
        return {Palette::kRefusal, Palette::kRefusalText, Palette::kRefusalText};
    return {Palette::kNotice, Palette::kMint, Palette::kNoticeText};
}

} // namespace

MessageStrip::MessageStrip(QWidget *parent)
    : QFrame(parent), m_text(new WrappedLabel(this)), m_button(new QPushButton(this))
{
    setObjectName(QStringLiteral("strip"));
    setMinimumHeight(metrics::kControlHeight + kBelow);
    m_text->setObjectName(QStringLiteral("notice"));
    m_text->setFont(noteFont);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setContentsMargins(0, metrics::kLineGap, 0, metrics::kLineGap);
    m_button->setObjectName(QStringLiteral("stripAction"));
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setFont(noteFont);
    m_button->setFixedHeight(metrics::kControlHeight);
    m_button->setStyleSheet(Palette::styled(kActionStyle));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kTextLeft, 0, metrics::kGap, kBelow);
    row->setSpacing(metrics::kGap);
    row->addWidget(m_text, 1);
    row->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, &MessageStrip::actionWanted);
    hide();
}

void MessageStrip::say(const QString &text, Tone tone, const QString &action)
{
    const bool isNew = text != m_text->text() || isHidden();
    m_tone = tone;
    dressText(m_text, {colorsOf(tone).text.rgb()});
    m_text->setText(text);
    m_button->setText(action);
    m_button->setVisible(!action.isEmpty());
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    update();
    if (isNew || tone == Tone::Refusal) // what is refused once more is news
        Announcer::say(text);
}

QString MessageStrip::text() const
{
    return m_text->text();
}

void MessageStrip::paintEvent(QPaintEvent *)
{
    const Colors colors = colorsOf(m_tone);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ground);
    const QRect strip = rect().adjusted(0, 0, 0, -kBelow);
    painter.drawRoundedRect(strip, kStripRadius, kStripRadius);
    const QRectF sign(kSignLeft, (strip.height() - kSign) / 2.0, kSign, kSign);
    painter.setPen(QPen(colors.sign, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(sign.adjusted(0.75, 0.75, -0.75, -0.75));
    const QPointF middle = sign.center();
    const qreal down = m_tone == Tone::Refusal ? 1 : -1; // "!" and "i"
    painter.setPen(QPen(colors.sign, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle - QPointF(0, 4 * down), middle + QPointF(0, 1 * down));
    painter.drawPoint(middle + QPointF(0, 4 * down));
}
