#include "controls/timecurve.h"

#include <algorithm>

#include <QPainter>
#include <QPainterPath>

#include "controls/palette.h"

namespace {

constexpr int kTextHeight = 20;
constexpr int kTopMargin = 18;
constexpr int kGridLines = 3;
const QColor kLine = Palette::kMint;
const QColor kGrid(255, 255, 255, 20);
const QColor kText = Palette::kHint;

} // namespace

TimeCurve::TimeCurve(int steps, QWidget *parent) : QWidget(parent), m_steps(steps)
{
    describeControlsToAssistiveSoftware();
    setMinimumHeight(kTopMargin + kTextHeight + 40);
}

void TimeCurve::setPoints(std::vector<Point> points, int maxGap)
{
    m_points = std::move(points);
    m_maxGap = maxGap;
    m_highest = 1;
    for (const Point &point : m_points)
        m_highest = std::max(m_highest, point.value);
    update();
}

void TimeCurve::setTexts(const QString &begin, const QString &end, const QString &top)
{
    m_begin = begin;
    m_end = end;
    m_top = top;
    update();
}

QString TimeCurve::valueText() const
{
    return m_top.isEmpty() ? QObject::tr("unknown") : QObject::tr("slowest %1").arg(m_top);
}

QRectF TimeCurve::plot() const
{
    return QRectF(rect()).adjusted(1, kTopMargin, -1, -kTextHeight);
}

QPointF TimeCurve::place(const Point &point) const
{
    const QRectF area = plot();
    return {area.right() - area.width() * point.age / std::max(m_steps - 1, 1),
            area.bottom() - area.height() * point.value / m_highest};
}

void TimeCurve::paintLines(QPainter &painter) const
{
    QPainterPath path;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const QPointF at = place(m_points[i]);
        const bool follows = i > 0 && m_points[i - 1].age - m_points[i].age <= m_maxGap;
        const bool goesOn = i + 1 < m_points.size() && m_points[i].age - m_points[i + 1].age <= m_maxGap;
        if (follows)
            path.lineTo(at);
        else if (goesOn)
            path.moveTo(at);
        else
            path.addEllipse(at, 0.75, 0.75); // alone, it would be no line
    }
    painter.setPen(QPen(kLine, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

void TimeCurve::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = plot();
    painter.setPen(QPen(kGrid, 1));
    for (int i = 0; i < kGridLines; ++i) {
        const qreal y = area.top() + area.height() * i / (kGridLines - 1);
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    }
    paintLines(painter);
    painter.setPen(kText);
    const QRectF below(area.left(), area.bottom(), area.width(), kTextHeight);
    painter.drawText(below, Qt::AlignLeft | Qt::AlignBottom, m_begin);
    painter.drawText(below, Qt::AlignRight | Qt::AlignBottom, m_end);
    painter.drawText(QRectF(area.left(), 0, area.width(), kTopMargin - 1), Qt::AlignLeft | Qt::AlignVCenter, m_top);
}
