#include "page/Splitter/layouteditor.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>

#include "controls/arrowkeys.h"
#include "controls/palette.h"
#include "page/Splitter/zonepicture.h"

namespace {

constexpr int kStep = kWholeSide / 48; // to which lines and edges snap; halves and thirds are among them
constexpr int kReach = 7;              // points, of the mouse at an edge
constexpr int kShortest = 12;          // points, of a line that cuts
constexpr qreal kBezel = 8;
constexpr qreal kScreenRadius = 10;
constexpr int kDigits = 22;

int snapped(int part)
{
    return static_cast<int>(std::lround(double(part) / kStep)) * kStep;
}

QPoint middle(const Zone &zone)
{
    return {(zone.left + zone.right) / 2, (zone.top + zone.bottom) / 2};
}

} // namespace

LayoutEditor::LayoutEditor(QWidget *parent) : QWidget(parent)
{
    describeControlsToAssistiveSoftware();
    setObjectName(QStringLiteral("layoutEditor"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(320, 180);
}

void LayoutEditor::show(const SplitLayout &layout, const QSize &screen)
{
    m_layout = layout;
    m_screen = screen.isEmpty() ? QSize(16, 9) : screen;
    endStroke();
    chooseZone(std::min(m_zone, m_layout.zones.size() - 1));
    update();
}

QRectF LayoutEditor::screenRect() const
{
    QSizeF size(m_screen);
    size.scale(QSizeF(rect().size()) - QSizeF(2 * kBezel, 2 * kBezel), Qt::KeepAspectRatio);
    return {QPointF(kBezel, kBezel), size}; // begins where the tools beside it do
}

QPoint LayoutEditor::partsAt(const QPointF &place) const
{
    const QRectF screen = screenRect();
    const QPointF at = place - screen.topLeft();
    return {static_cast<int>(at.x() * kWholeSide / screen.width()),
            static_cast<int>(at.y() * kWholeSide / screen.height())};
}

QString LayoutEditor::valueText() const
{
    return QObject::tr("Zone %1 of %2").arg(m_zone + 1).arg(m_layout.zones.size());
}

std::optional<Zones> LayoutEditor::halved(Cut cut) const
{
    const QPoint at = middle(m_layout.zones[m_zone]);
    return cutZone(m_layout.zones, m_zone, cut, snapped(cut == Cut::Upright ? at.x() : at.y()));
}

void LayoutEditor::cut(Cut cut)
{
    if (const auto zones = canCut(cut) ? halved(cut) : std::nullopt)
        Q_EMIT drawn(*zones);
}

void LayoutEditor::join()
{
    if (const auto zones = canJoin() ? joinZone(m_layout.zones, m_zone) : std::nullopt)
        Q_EMIT drawn(*zones);
}

/// What is drawn from where the button went down to this place; nothing where that changes nothing.
std::optional<Zones> LayoutEditor::strokeResult(const QPointF &place) const
{
    const QPoint parts = partsAt(place);
    if (m_stroke == Stroke::Edge)
        return moveEdge(m_layout.zones, m_edge, snapped(m_edge.runs == Cut::Upright ? parts.x() : parts.y()));
    const QPointF way = place - m_pressed;
    if (m_stroke == Stroke::None || std::max(std::abs(way.x()), std::abs(way.y())) < kShortest)
        return {};
    const QPoint begin = partsAt(m_pressed);
    const bool isUpright = std::abs(way.y()) > std::abs(way.x()); // the line itself is what is drawn
    return cutZone(m_layout.zones, zoneAt(m_layout.zones, begin), isUpright ? Cut::Upright : Cut::Across,
                   snapped(isUpright ? begin.x() : begin.y()));
}

void LayoutEditor::mousePressEvent(QMouseEvent *event)
{
    const QPoint parts = partsAt(event->position());
    const std::size_t zone = zoneAt(m_layout.zones, parts);
    if (event->button() != Qt::LeftButton || zone == m_layout.zones.size())
        return event->ignore();
    chooseZone(zone);
    if (!m_layout.isOwn)
        return;
    m_pressed = event->position();
    const int reach = static_cast<int>(kReach * kWholeSide / screenRect().width());
    const auto edge = edgeNear(m_layout.zones, parts, reach);
    m_stroke = edge ? Stroke::Edge : Stroke::Line;
    if (edge)
        m_edge = *edge;
}

void LayoutEditor::mouseMoveEvent(QMouseEvent *event)
{
    if (m_stroke == Stroke::None)
        return showCursor(event->position());
    m_seen = strokeResult(event->position());
    update();
}

void LayoutEditor::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto zones = strokeResult(event->position());
    endStroke();
    if (zones)
        Q_EMIT drawn(*zones);
}

/// What is drawn so far is no longer seen.
void LayoutEditor::endStroke()
{
    m_stroke = Stroke::None;
    m_seen.reset();
    update();
}

void LayoutEditor::hideEvent(QHideEvent *event)
{
    endStroke();
    QWidget::hideEvent(event);
}

void LayoutEditor::leaveEvent(QEvent *)
{
    unsetCursor();
}

void LayoutEditor::showCursor(const QPointF &place)
{
    if (!m_layout.isOwn || !screenRect().contains(place))
        return unsetCursor();
    const int reach = static_cast<int>(kReach * kWholeSide / screenRect().width());
    const auto edge = edgeNear(m_layout.zones, partsAt(place), reach);
    setCursor(!edge ? Qt::CrossCursor : edge->runs == Cut::Upright ? Qt::SplitHCursor : Qt::SplitVCursor);
}

void LayoutEditor::chooseZone(std::size_t zone)
{
    const bool isNew = m_zone != zone;
    m_zone = zone;
    update();
    if (isNew)
        announceState(this);
    Q_EMIT zoneChanged();
}

/// To the nearest zone in the direction of an arrow.
void LayoutEditor::step(int key)
{
    const QPoint direction = *stepOfArrow(key);
    const QPoint from = middle(m_layout.zones[m_zone]);
    std::size_t nearest = m_zone;
    int least = 0;
    for (std::size_t i = 0; i < m_layout.zones.size(); ++i) {
        const QPoint way = middle(m_layout.zones[i]) - from;
        const int ahead = QPoint::dotProduct(way, direction);
        const int aside = std::abs(way.x() * direction.y()) + std::abs(way.y() * direction.x());
        if (ahead > 0 && (nearest == m_zone || ahead + 2 * aside < least)) {
            nearest = i;
            least = ahead + 2 * aside;
        }
    }
    chooseZone(nearest);
}

/// The edge at the right or below; of a zone that ends with the screen the other one.
void LayoutEditor::moveEdgeOfZone(int key)
{
    const Zone zone = m_layout.zones[m_zone];
    const QPoint direction = *stepOfArrow(key);
    const bool isUpright = direction.x() != 0;
    const int high = isUpright ? zone.right : zone.bottom;
    const int low = isUpright ? zone.left : zone.top;
    const ZoneEdge edge{isUpright ? Cut::Upright : Cut::Across, high < kWholeSide ? high : low,
                        isUpright ? zone.top : zone.left};
    if (edge.at <= 0)
        return;
    if (const auto zones = moveEdge(m_layout.zones, edge, edge.at + kStep * (direction.x() + direction.y())))
        Q_EMIT drawn(*zones);
}

void LayoutEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_stroke != Stroke::None)
        return endStroke();
    if (m_stroke != Stroke::None || !stepOfArrow(event->key()))
        return QWidget::keyPressEvent(event);
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        step(event->key());
    else if (m_layout.isOwn)
        moveEdgeOfZone(event->key());
}

void LayoutEditor::followFocus(const QFocusEvent *event)
{
    m_focusRing.follow(event);
    update();
}

void LayoutEditor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF screen = screenRect();
    painter.setPen(QPen(QColor(Palette::kRestingEdge), 1));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(screen.adjusted(-kBezel + 1, -kBezel + 1, kBezel - 1, kBezel - 1), kScreenRadius,
                            kScreenRadius);
    const Zones &zones = m_seen ? *m_seen : m_layout.zones;
    drawZones(painter, screen, zones, {4, kDigits, m_seen ? std::nullopt : std::optional(m_zone)});
    m_focusRing.draw(painter, screen.adjusted(-kBezel, -kBezel, kBezel, kBezel).toRect(), kScreenRadius);
}
