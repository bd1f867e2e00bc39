#include "framelesswindow.h"

#include <QMouseEvent>

#include "controls/pictures.h"

FramelessWindow::FramelessWindow(const QString &picture)
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    const QPixmap background = Pictures::load(Pictures::kRoot + picture, devicePixelRatioF());
    setPixmap(background);
    setScaledContents(true);
    setFixedSize((QSizeF(background.size()) / background.devicePixelRatio()).toSize());
}

void FramelessWindow::showInFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void FramelessWindow::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        cameToFront();
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
