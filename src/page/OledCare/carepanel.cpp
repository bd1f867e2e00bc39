#include "page/OledCare/carepanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wrappedlabel.h"
#include "page/OledCare/carecalendar.h"
#include "page/OledCare/carehistory.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/plainbutton.h"

namespace {

QLabel *makeLine(const TextLook &look, QWidget *parent)
{
    auto *line = new WrappedLabel(parent);
    line->setWordWrap(true);
    line->setTextFormat(Qt::PlainText);
    dressText(line, look);
    return line;
}

/// Whole hours, and tenths below ten.
QString hours(qint64 seconds)
{
    const double value = static_cast<double>(seconds) / 3600;
    return QString::number(value, 'f', value < 10 ? 1 : 0);
}

QString nextCare(const CareFacts &facts)
{
    if (facts.isRunning)
        return QObject::tr("Care is running. Leave the monitor on until the picture is back.");
    if (isCareDue(facts))
        return facts.isByItself ? QObject::tr("Care is due: the monitor begins when it goes to standby.")
                                : QObject::tr("Care is due.");
    const std::optional<qint64> left = secondsLeft(facts);
    return left ? QObject::tr("The next care is due after %1 more hours of use.").arg(hours(*left))
                : QObject::tr("The monitor has not told when the next care is due.");
}

} // namespace

CarePanel::CarePanel(BoundTexts &texts, QWidget *parent)
    : QFrame(parent), m_calendar(new CareCalendar(this)), m_used(makeLine({Palette::kText, 17}, this)),
      m_last(makeLine({Palette::kSoft, 14}, this)), m_next(makeLine({Palette::kBright, 15}, this)),
      m_start(makePlainButton(LABEL("Start care"), QStringLiteral("startCare"), texts, this))
{
    auto *legend = makeLine({Palette::kHint, 13}, this);
    auto *effect = makeLine({Palette::kDim, 14}, this);
    texts.bind(LABEL("Lighter = used longer that day, ring = cared for."),
               [legend](const QString &text) { legend->setText(text); });
    texts.bind(
        LABEL("Care takes about 6 minutes, in which the picture is black. It evens out how the pixels have aged; "
              "nothing that is open is lost."),
        [effect](const QString &text) { effect->setText(text); });
    texts.bind(LABEL("Use and care of the last five weeks"),
               [this](const QString &text) { m_calendar->setAccessibleName(text); });
    auto *right = new QVBoxLayout;
    right->setSpacing(metrics::kGap);
    for (QLabel *line : {m_used, m_last, m_next, effect})
        right->addWidget(line);
    right->addSpacing(metrics::kGap);
    right->addWidget(m_start, 0, Qt::AlignLeft);
    right->addStretch(1);
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(m_calendar, 0, Qt::AlignTop);
    row->addLayout(right, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, metrics::kGap, 0, 0);
    column->setSpacing(metrics::kGap);
    column->addLayout(row);
    column->addWidget(legend);
}

void CarePanel::show(const CareHistory &history, const CareFacts &facts, const QDateTime &now)
{
    m_used->setText(history.last ? QObject::tr("%1 hours of use since the last care").arg(hours(history.used))
                                 : QObject::tr("%1 hours of use counted").arg(hours(history.used)));
    m_last->setText(history.last
                        ? QObject::tr("Last care: %1").arg(history.last->toString(QStringLiteral("yyyy-MM-dd hh:mm")))
                        : QObject::tr("No care has been seen yet: hours count from the first start of this tool."));
    m_next->setText(nextCare(facts));
    m_calendar->setDays(now.date(), history.days);
    m_calendar->setValueText(lines().join(QLatin1Char(' ')));
    m_start->setEnabled(!facts.isRunning);
    m_start->setAccessibleDescription(facts.isRunning ? m_next->text() : QString());
    m_start->setToolTip(m_start->accessibleDescription());
}

QStringList CarePanel::lines() const
{
    return {m_used->text(), m_last->text(), m_next->text()};
}
