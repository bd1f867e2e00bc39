#pragma once

#include <optional>

#include <QWidget>

class PictureLabel;
class QScreen;
class QScrollArea;

/// A window whose frame is a picture, which gives it its size. Where the screen has less room its parts move together,
/// and where that is not enough, or the room gets less while the window is open, they scroll. It is dragged by any
/// place that no control takes.
class FramelessWindow : public QWidget
{
public:
    /// Shows the window in front of all others, also when it was minimised.
    void showInFront();

protected:
    /// The picture's path below the resource folder.
    explicit FramelessWindow(const QString &picture);

    /// What everything in the window stands on; it may be larger than the window.
    QWidget *ground() const;

    /// It is the window in use now, and was not before.
    virtual void cameToFront() = 0;

    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QSize roomOf(const QSize &wanted) const;
    void layGround();
    void fitScreen();
    void makeRoomScroll();
    void followScreen(const QScreen *screen);
    void takeRoom();
    void keepOnScreen();
    void keepSize();

    PictureLabel *m_ground;
    QScrollArea *m_area = nullptr;     ///< none until the screen has too little room
    std::optional<QPoint> m_dragStart; ///< where the window was taken hold of
};
