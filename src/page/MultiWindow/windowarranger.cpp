#include "page/MultiWindow/windowarranger.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "controls/dash.h"
#include "controls/palette.h"
#include "page/MultiWindow/multiwindowtable.h"

namespace {

constexpr double kReach = 8; // of an edge, around it
constexpr double kFrame = 12;
constexpr double kStand = 34; // below the frame
constexpr double kShape = 16.0 / 9;
constexpr QSize kLargest(568, 364);
constexpr int kLargestSize = 2;

/// By the number of a window: what tells the inputs apart.
constexpr QRgb kGrounds[] = {0xff18232c, 0xff1f3a33};

std::optional<Inset> insetOf(const WindowsShown &windows)
{
    if (windows.mode != kPictureInPicture || !windows.place || !windows.size)
        return {};
    return Inset{*windows.place, *windows.size};
}

} // namespace

WindowArranger::WindowArranger(QWidget *parent) : PaintedControl(parent)
{
    setObjectName(QStringLiteral("windowArranger"));
    setMouseTracking(true);
    setMinimumHeight(220);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize WindowArranger::sizeHint() const
{
    return kLargest;
}

std::optional<Inset> WindowArranger::inset() const
{
    return insetOf(m_windows);
}

QRectF WindowArranger::screen() const
{
    const double width = std::min(
        {kLargest.width() - 2 * kFrame, this->width() - 2 * kFrame - 2, (height() - kStand - 2 * kFrame - 2) * kShape});
    return {kFrame + 1, kFrame + 1, width, width / kShape};
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

void WindowArranger::preview(const std::optional<WindowsShown> &windows)
{
    m_preview = windows;
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
        want({now->place, std::clamp(now->size + (isMore ? 1 : -1), 0, kLargestSize)});
}

void WindowArranger::hideEvent(QHideEvent *event)
{
    m_drag.reset();
    PaintedControl::hideEvent(event);
}

void WindowArranger::drawWindow(QPainter &painter, const QRectF &rect, int number) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kGrounds[number - 1]));
    painter.drawRect(rect);
    QFont font = painter.font();
    font.setPixelSize(std::max(14, static_cast<int>(rect.height() / 4)));
    painter.setFont(font);
    painter.setPen(QColor(number == 1 ? Palette::kHint : Palette::kMint));
    painter.drawText(rect, Qt::AlignCenter, QString::number(number));
}

void WindowArranger::drawOutline(QPainter &painter, const QRectF &rect) const
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(Palette::kBright), 1.5, Qt::DashLine));
    painter.drawRect(rect);
}

void WindowArranger::drawPreview(QPainter &painter) const
{
    const QRectF room = screen();
    if (const std::optional<Inset> end = m_drag ? wanted() : m_preview ? insetOf(*m_preview) : std::nullopt)
        drawOutline(painter, insetRect(*end, room));
    else if (m_preview && m_preview->mode == kPictureByPicture && m_windows.mode != kPictureByPicture)
        drawOutline(painter, room.adjusted(room.width() / 2, 1, -1, -1));
}

void WindowArranger::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF room = screen();
    const QRectF frame = room.adjusted(-kFrame, -kFrame, kFrame, kFrame);
    painter.setPen(QPen(QColor(Palette::kHairline), 1));
    painter.setBrush(QColor(Palette::kGround));
    painter.drawRoundedRect(frame, 12, 12);
    const double half = m_windows.mode == kPictureByPicture ? room.width() / 2 : 0;
    drawWindow(painter, room.adjusted(0, 0, -half, 0), 1);
    if (!m_windows.mode)
        painter.drawText(room, Qt::AlignHCenter | Qt::AlignBottom, kDash);
    if (half > 0)
        drawWindow(painter, room.adjusted(half, 0, 0, 0), 2);
    if (const QRectF small = m_drag ? m_drag->rect : insetNow(); !small.isEmpty()) {
        drawWindow(painter, small, 2);
        painter.setPen(QPen(QColor(Palette::kMint), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(small);
    }
    drawPreview(painter);
    drawFocus(painter, frame.toAlignedRect().adjusted(-1, -1, 1, 1), 12);
}
