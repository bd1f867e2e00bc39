#include "framelesswindow.h"

#include <algorithm>

#include <QApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "controls/accessiblecontrol.h"
#include "controls/focusring.h"
#include "controls/palette.h"
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
    fitScreen();
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, [this](const QScreen *screen) {
        followScreen(screen);
        QMetaObject::invokeMethod(this, &FramelessWindow::takeRoom, Qt::QueuedConnection);
    });
    followScreen(QGuiApplication::primaryScreen());
}

/// How much of that there is room for on the screen now.
QSize FramelessWindow::roomOf(const QSize &wanted) const
{
    const auto area = platform::desk().displays().workArea();
    return area ? wanted.boundedTo(roomFor(*area, devicePixelRatioF())) : wanted;
}

/// The picture is lower where that is enough. It stays as it is then, as does what stands on it.
void FramelessWindow::layGround()
{
    QSize whole = m_ground->pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
    const QSize room = roomOf(whole);
    const int bar = room.width() < whole.width() ? kScrollBarWidth : 0;
    whole.setHeight(std::max(room.height() - bar, kLeastHeight));
    m_ground->setPictureHeight(whole.height());
    m_ground->setFixedSize(whole);
}

/// Where there is room for a part of the ground only, there are bars that scroll.
void FramelessWindow::fitScreen()
{
    const QSize whole = m_ground->minimumSize();
    const bool isNarrow = roomOf(whole).width() < whole.width();
    const QSize room = roomOf(whole + QSize(0, isNarrow ? kScrollBarWidth : 0));
    if (!m_area && room != whole)
        makeRoomScroll();
    setFixedSize(room);
    if (!m_area)
        return;
    m_area->setGeometry(rect());
    m_area->setHorizontalScrollBarPolicy(isNarrow ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void FramelessWindow::makeRoomScroll()
{
    m_area = makeScrollArea(this);
    QScrollBar *bar = m_area->horizontalScrollBar();
    bar->setStyleSheet(scrollBarStyle());
    m_area->verticalScrollBar()->setStyleSheet(scrollBarStyle() +
                                               Palette::styled(u"QScrollBar:vertical { background: @ground; }"));
    auto *corner = new QWidget(m_area);
    corner->setAutoFillBackground(true);
    corner->setPalette(QColor(Palette::kGround));
    m_area->setCornerWidget(corner);
    connect(bar, &QScrollBar::valueChanged, bar, [this, bar] {
        if (m_area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
            bar->setValue(0); // the other bar lies over the right margin, to which nothing needs to scroll
    });
    fillScrollArea(m_area, m_ground);
    m_area->show();
}

/// When the system has told all of a change.
void FramelessWindow::followScreen(const QScreen *screen)
{
    if (screen)
        connect(screen, &QScreen::availableGeometryChanged, this, &FramelessWindow::takeRoom,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

/// The screen may get smaller or larger while the window is open.
void FramelessWindow::takeRoom()
{
    fitScreen();
    if (isVisible())
        keepOnScreen();
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
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    if (QWidget *question = QApplication::activeModalWidget()) // which holds up the window
        question->activateWindow();
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
