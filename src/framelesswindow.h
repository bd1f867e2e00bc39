#pragma once

#include <optional>

#include "controls/picturelabel.h"

/// A window whose frame is a picture, which gives it its size. It is dragged by any place that no control takes.
class FramelessWindow : public PictureLabel
{
public:
    /// Shows the window in front of all others, also when it was minimised.
    void showInFront();

protected:
    /// The picture's path below the resource folder.
    explicit FramelessWindow(const QString &picture);

    /// It is the window in use now, and was not before.
    virtual void cameToFront() = 0;

    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void keepOnScreen();
    void keepSize();

    std::optional<QPoint> m_dragStart; ///< where the window was taken hold of
};
