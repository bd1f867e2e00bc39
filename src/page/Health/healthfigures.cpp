#include "page/Health/healthfigures.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

#include "controls/captionlabel.h"
#include "controls/dash.h"
#include "controls/metrics.h"
#include "controls/sharedfonts.h"
#include "controls/timecurve.h"
#include "page/Health/healthlabel.h"
#include "page/engine/labels.h"

namespace {

constexpr int kLongestGap = 12; // spans: a minute without a request is a gap in the curve

} // namespace

HealthFigures::HealthFigures(BoundTexts &texts, QWidget *parent) : QWidget(parent), m_texts(texts)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kGap);
    for (int i = 0; i < kHealthFigures; ++i)
        row->addWidget(buildTile(m_tiles[static_cast<std::size_t>(i)], figureCaption(i)), 1);
    column->addLayout(row);
    column->addWidget(buildCurve());
}

QWidget *HealthFigures::buildTile(Tile &tile, const char *caption)
{
    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("healthTile"));
    frame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // all of one width, whatever they say
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(metrics::kInset, metrics::kGap, metrics::kGap, metrics::kGap);
    column->setSpacing(metrics::kLineGap);
    QLabel *const title = makeHealthLabel(QStringLiteral("note"), 13, caption, m_texts, frame);
    tile.value = makeHealthLabel(QStringLiteral("healthValue"), 26, frame);
    tile.detail = new CaptionLabel(QString(), 13, frame);
    tile.detail->setObjectName(QStringLiteral("note"));
    tile.detail->setFont(noteFont);
    for (QLabel *label : {title, tile.value, tile.detail})
        column->addWidget(label);
    return frame;
}

QWidget *HealthFigures::buildCurve()
{
    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("healthTile"));
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(metrics::kInset, metrics::kGap, metrics::kInset, metrics::kGap);
    column->setSpacing(0);
    column->addWidget(
        makeHealthLabel(QStringLiteral("note"), 13, LABEL("Answer times, last ten minutes"), m_texts, frame));
    m_curve = new TimeCurve(LinkRecord::kSpans, frame);
    m_curve->setFont(noteFont);
    column->addWidget(m_curve, 1);
    frame->setFixedHeight(116);
    return frame;
}

void HealthFigures::fill(std::size_t index, const LinkRecord &record, const QDateTime &now)
{
    for (int i = 0; i < kHealthFigures; ++i) {
        const HealthFigure figure = healthFigure(i, index, record);
        const Tile &tile = m_tiles[static_cast<std::size_t>(i)];
        showOrDash(tile.value, figure.value);
        tile.detail->setText(figure.detail);
        tile.value->setProperty("bad", figure.isBad);
        tile.value->style()->polish(tile.value); // the style looks at the property only now
    }
    fillCurve(record, now);
}

void HealthFigures::fillCurve(const LinkRecord &record, const QDateTime &now)
{
    std::vector<TimeCurve::Point> points;
    int highest = 0;
    for (const LatencySpan &span : record.latencies(now)) {
        points.push_back({static_cast<int>(LinkRecord::spanOf(now) - span.number), span.worst});
        highest = std::max(highest, span.worst);
    }
    m_curve->setTexts(QObject::tr("10 min"), QObject::tr("now"),
                      points.empty() ? QString() : QObject::tr("%1 ms").arg(highest));
    m_curve->setPoints(std::move(points), kLongestGap);
    m_curve->setAccessibleName(QObject::tr("Answer times, last ten minutes"));
}
