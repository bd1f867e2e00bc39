#include "page/engine/undobar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

#include "controls/announcer.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wrappedlabel.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "page/engine/plainbutton.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kTick{100};
constexpr qreal kBarRadius = 8;
const QColor kGround = Palette::kCard;
const QColor kBarEdge = Palette::kHairline;
const QColor kTime = Palette::kMint;

/// An option's value in the words of its group.
QString wordOf(const OptionGroup &group, int value)
{
    const Option *option = optionOf(group, value);
    return option ? optionName(*option) : QString::number(value);
}

} // namespace

UndoBar::UndoBar(QWidget *parent) : QFrame(parent), m_text(new WrappedLabel(this)), m_button(new QPushButton(this))
{
    setObjectName(QStringLiteral("undoBar"));
    dressText(m_text, {Palette::kSoft, 14});
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    dressPlainButton(m_button);
    m_button->setFixedHeight(metrics::kControlHeight);
    m_button->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(metrics::kInset, metrics::kGap, metrics::kGap, metrics::kGap);
    row->setSpacing(metrics::kInset);
    row->addWidget(m_text, 1);
    row->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, [this] {
        check();
        if (m_offer)
            Q_EMIT undoWanted(UndoOffer(*m_offer));
    });
    hide();
}

void UndoBar::offer(const OptionGroup &group, int before, int value)
{
    m_offer = {*group.command, before, value, monitorIdentity()};
    m_group = group;
    m_left = kOffered;
    show();
    ++m_number;
    tick();
    retranslate();
}

void UndoBar::retranslate()
{
    if (!m_offer)
        return;
    const QString name = QObject::tr(m_group.label);
    const QString text = QObject::tr("%1 was changed to \"%2\".").arg(name, wordOf(m_group, m_offer->value));
    const QString undo = QObject::tr("Set %1 back to \"%2\"").arg(name, wordOf(m_group, m_offer->before));
    m_text->setText(text);
    m_button->setText(QObject::tr("Undo"));
    m_button->setAccessibleName(undo);
    m_button->setToolTip(undo);
    setAccessibleName(text);
    Announcer::say(text);
}

/// The time is counted, not read from the clock: somebody may set that back.
void UndoBar::tick()
{
    check();
    if (!m_offer)
        return;
    if (m_left.count() <= 0)
        return withdraw();
    update();
    platform::desk().clock().callLater(kTick, this, [this, number = m_number] {
        if (number != m_number)
            return; // an older offer's time
        m_left -= kTick;
        tick();
    });
}

void UndoBar::check()
{
    if (m_offer && (deviceState.confirmed(m_offer->command) != m_offer->value || monitorIdentity() != m_offer->monitor))
        withdraw();
}

void UndoBar::withdraw()
{
    m_offer.reset();
    hide();
}

void UndoBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(kBarEdge);
    painter.setBrush(kGround);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kBarRadius, kBarRadius);
    const qreal whole = width() - 2 * kBarRadius;
    const qreal share = static_cast<qreal>(m_left.count()) / static_cast<qreal>(kOffered.count());
    painter.fillRect(QRectF(kBarRadius, height() - 2.5, whole * share, 1.5), kTime);
}
