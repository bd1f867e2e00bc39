#include "framelesswindow.h"

#include <algorithm>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "controls/accessiblecontrol.h"
#include "controls/focusring.h"
#include "controls/picturelabel.h"
#include "page/engine/scrollarea.h"
#include "platform/desk.h"
#include "windowscale.h"

namespace {

constexpr int kLeastHeight = 720; // points: a screen of 768 lines at 100 % has as many beside its taskbar

} // namespace

FramelessWindow::FramelessWindow(const QString &picture) : m_ground(new PictureLabel(this))
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    describeAs(this, QAccessible::Window);
    describeAs(m_ground, QAccessible::Client);
    m_ground->setPicture(picture);
    m_ground->setScaledContents(true);
    layGround();
}

/// The picture is lower where that is enough; else there is room for a part of it, and bars that scroll.
void FramelessWindow::layGround()
{
    QSize whole = m_ground->pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
    QSize room = whole;
    if (const auto area = platform::desk().displays().workArea())
        room = room.boundedTo(roomFor(*area, devicePixelRatioF()));
    const bool isNarrow = room.width() < whole.width();
    whole.setHeight(std::max(room.height() - (isNarrow ? kScrollBarWidth : 0), kLeastHeight));
    m_ground->setPictureHeight(whole.height());
    m_ground->setFixedSize(whole);
    setFixedSize(room);
    if (isNarrow || room.height() < whole.height())
        makeRoomScroll(isNarrow);
}

void FramelessWindow::makeRoomScroll(bool isNarrow)
{
    QScrollArea *area = makeScrollArea(this);
    area->setGeometry(rect());
    QScrollBar *bar = area->horizontalScrollBar();
    bar->setStyleSheet(scrollBarStyle());
    if (isNarrow)
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    else // the other bar lies over the right margin, to which nothing needs to scroll
        connect(bar, &QScrollBar::valueChanged, bar, [bar] { bar->setValue(0); });
    fillScrollArea(area, m_ground);
}

QWidget *FramelessWindow::ground() const
{
    return m_ground;
}

void FramelessWindow::showInFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    keepOnScreen();
    raise();
    activateWindow();
}

void FramelessWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &FramelessWindow::keepSize,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
    keepOnScreen();
}

/// In points: not every system gives a window more pixels that comes to a screen of a larger scale.
void FramelessWindow::keepSize()
{
    windowHandle()->resize(minimumSize());
}

/// A screen may have gone since the window was hidden, or the system may have placed it half outside.
void FramelessWindow::keepOnScreen()
{
    const QScreen *screen = QGuiApplication::screenAt(frameGeometry().center());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QPoint last = area.bottomRight() - rect().bottomRight();
    move(std::max(area.left(), std::min(x(), last.x())), std::max(area.top(), std::min(y(), last.y())));
}

void FramelessWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        cameToFront();
}

void FramelessWindow::keyPressEvent(QKeyEvent *event)
{
    if (!pressFocused(event, this))
        QWidget::keyPressEvent(event);
}

void FramelessWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragStart = event->globalPosition().toPoint() - pos();
}

void FramelessWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragStart && event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPosition().toPoint() - *m_dragStart);
}

void FramelessWindow::mouseReleaseEvent(QMouseEvent *)
{
    m_dragStart.reset();
}
