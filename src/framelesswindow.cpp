#include "framelesswindow.h"

#include <algorithm>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include "controls/accessiblecontrol.h"
#include "controls/focusring.h"
#include "platform/desk.h"
#include "windowscale.h"

FramelessWindow::FramelessWindow(const QString &picture)
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    describeAs(this, QAccessible::Window);
    setPicture(picture);
    setScaledContents(true);
    QSize size = pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
    if (const auto area = platform::desk().displays().workArea())
        size.setHeight(std::min(size.height(), heightToFit(*area, devicePixelRatioF())));
    setPictureHeight(size.height());
    setFixedSize(size);
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
    PictureLabel::showEvent(event);
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
    PictureLabel::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        cameToFront();
}

void FramelessWindow::keyPressEvent(QKeyEvent *event)
{
    if (!pressFocused(event, this))
        PictureLabel::keyPressEvent(event);
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
