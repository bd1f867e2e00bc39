#pragma once

#include <QWidget>

#include "controls/accessiblecontrol.h"
#include "controls/focusring.h"
#include "splitter/layoutedit.h"

/// A picture of the screen on which the zones of an own layout are drawn: a line through a zone cuts it, an edge is
/// dragged; Escape leaves all as it was. With the keyboard the arrows choose a zone, and with Ctrl they move its edges.
class LayoutEditor : public QWidget, public Described
{
    Q_OBJECT
public:
    explicit LayoutEditor(QWidget *parent);

    /// Shows a layout on a screen of that shape; a fixed one cannot be drawn on.
    void show(const SplitLayout &layout, const QSize &screen);

    /// The zone that the keyboard is at.
    std::size_t zone() const { return m_zone; }

    // What the buttons beside it do to that zone.

    bool canCut(Cut cut) const { return m_layout.isOwn && halved(cut).has_value(); }
    bool canJoin() const { return m_layout.isOwn && joinZone(m_layout.zones, m_zone).has_value(); }
    void cut(Cut cut);
    void join();

    /// Where the screen is on the widget, in points.
    QRectF screenRect() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    QString valueText() const override;

Q_SIGNALS:
    /// The user changed the zones.
    void drawn(const Zones &zones);

    /// The keyboard is at another zone.
    void zoneChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override { followFocus(event); }
    void focusOutEvent(QFocusEvent *event) override { followFocus(event); }

private:
    /// What the mouse does while its button is down: nothing, an edge moves, or a line is drawn.
    enum class Stroke { None, Edge, Line };

    QPoint partsAt(const QPointF &place) const;
    std::optional<Zones> halved(Cut cut) const;
    std::optional<Zones> strokeResult(const QPointF &place) const;
    void endStroke();
    void showCursor(const QPointF &place);
    void chooseZone(std::size_t zone);
    void step(int key);
    void moveEdgeOfZone(int key);
    void followFocus(const QFocusEvent *event);

    SplitLayout m_layout;
    QSize m_screen{16, 9};
    std::size_t m_zone = 0;
    Stroke m_stroke = Stroke::None;
    QPointF m_pressed;           ///< where the button went down
    ZoneEdge m_edge;             ///< that moves
    std::optional<Zones> m_seen; ///< what letting the button go would make
    FocusRing m_focusRing;
};
