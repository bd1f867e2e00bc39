#include "page/MultiWindow/windowarranger.h"

#include <algorithm>

#include <QPainter>

#include "controls/monitorpicture.h"
#include "page/MultiWindow/multiwindowtable.h"
#include "page/MultiWindow/windowspicture.h"

namespace {

constexpr double kReach = 8; // of an edge, around it

std::optional<Inset> insetOf(const WindowsShown &windows)
{
    if (windows.mode != kPictureInPicture || !windows.place || !windows.size)
        return {};
    return Inset{*windows.place, *windows.size};
}

} // namespace

WindowArranger::WindowArranger(MonitorPicture *picture) : PaintedControl(picture), m_picture(picture)
{
    setObjectName(QStringLiteral("windowArranger"));
    setMouseTracking(true);
    picture->installEventFilter(this);
    resize(picture->size());
}

bool WindowArranger::eventFilter(QObject *picture, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        resize(m_picture->size());
    return PaintedControl::eventFilter(picture, event);
}

std::optional<Inset> WindowArranger::inset() const
{
    return insetOf(m_windows);
}

QRectF WindowArranger::screen() const
{
    return m_picture->screenRect();
}

QRectF WindowArranger::insetNow() const
{
    const std::optional<Inset> shown = inset();
    return shown ? insetRect(*shown, screen()) : QRectF();
}

void WindowArranger::showWindows(const WindowsShown &windows)
{
    if (m_windows == windows)
        return;
    m_windows = windows;
    m_drag.reset();
    update();
}

void WindowArranger::setLock(const QString &reason)
{
    m_lock = reason;
    setToolTip(reason);
    setAccessibleDescription(reason);
    if (!reason.isEmpty())
        endDrag();
    announceState(this);
}

void WindowArranger::setValueText(const QString &text)
{
    m_valueText = text;
}

void WindowArranger::want(const Inset &inset)
{
    const std::optional<Inset> now = this->inset();
    if (!now || !isUsable())
        return;
    if (inset.place != now->place)
        Q_EMIT placeWanted(inset.place);
    if (inset.size != now->size)
        Q_EMIT sizeWanted(inset.size);
}

void WindowArranger::press()
{
    if (const std::optional<Inset> now = inset())
        want({nextPlace(now->place), now->size});
}

/// What a drag would end in: the body changes the place, an edge the size.
std::optional<Inset> WindowArranger::wanted() const
{
    const std::optional<Inset> now = inset();
    if (!m_drag || !now)
        return {};
    return m_drag->grip == kBody ? Inset{placeNear(m_drag->rect, screen()), now->size}
                                 : Inset{now->place, sizeNear(m_drag->rect.width(), screen())};
}

void WindowArranger::endDrag()
{
    m_drag.reset();
    update();
}

void WindowArranger::mousePressEvent(QMouseEvent *event)
{
    const std::optional<Inset> now = inset();
    if (event->button() != Qt::LeftButton || !now || !isUsable())
        return event->ignore();
    const int grip = gripAt(*now, screen(), event->position(), kReach);
    if (grip == kNoGrip)
        return event->ignore();
    m_drag = Drag{grip, event->position(), insetRect(*now, screen())};
    update();
}

void WindowArranger::mouseMoveEvent(QMouseEvent *event)
{
    const std::optional<Inset> now = inset();
    if (!m_drag || !now)
        return followPointer(event->position());
    if (m_drag->grip != kBody) {
        m_drag->rect = stretched(*now, screen(), m_drag->grip, event->position());
        return update();
    }
    const QRectF room = screen();
    QRectF rect = insetRect(*now, room).translated(event->position() - m_drag->from);
    rect.moveLeft(std::clamp(rect.left(), room.left(), room.right() - rect.width()));
    rect.moveTop(std::clamp(rect.top(), room.top(), room.bottom() - rect.height()));
    m_drag->rect = rect;
    update();
}

void WindowArranger::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    const std::optional<Inset> end = wanted();
    endDrag();
    if (end)
        want(*end);
}

void WindowArranger::followPointer(QPointF at)
{
    const std::optional<Inset> now = inset();
    const int grip = now && isUsable() ? gripAt(*now, screen(), at, kReach) : int(kNoGrip);
    const bool isFalling =
        now && (now->place == 0 || now->place == 3); // its free corner lies right below, or left above
    switch (grip) {
    case kNoGrip:
        return unsetCursor();
    case kBody:
        return setCursor(Qt::SizeAllCursor);
    case kWidthEdge:
        return setCursor(Qt::SizeHorCursor);
    case kHeightEdge:
        return setCursor(Qt::SizeVerCursor);
    default:
        return setCursor(isFalling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor);
    }
}

void WindowArranger::keyPressEvent(QKeyEvent *event)
{
    const std::optional<Inset> now = inset();
    const auto key = static_cast<Qt::Key>(event->key());
    if (key == Qt::Key_Escape && m_drag)
        return endDrag();
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    const bool isMore = key == Qt::Key_Plus || key == Qt::Key_Equal; // plus without its shift
    if (!now || m_drag || (!isArrow && !isMore && key != Qt::Key_Minus))
        return PaintedControl::keyPressEvent(event);
    if (isArrow)
        want({placeTowards(now->place, key), now->size});
    else
        want({now->place, std::clamp(now->size + (isMore ? 1 : -1), 0, kInsetSizes - 1)});
}

void WindowArranger::hideEvent(QHideEvent *event)
{
    m_drag.reset();
    PaintedControl::hideEvent(event);
}

/// What is set stays to be seen in the picture below: the drag is not written yet.
void WindowArranger::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (const std::optional<Inset> end = wanted()) {
        drawWindow(painter, m_drag->rect, 2);
        drawWindowEdge(painter, m_drag->rect, false);
        drawWindowEdge(painter, insetRect(*end, screen()), true);
    }
    drawFocus(painter, screen().toAlignedRect().adjusted(-8, -8, 8, 8), 10);
}
