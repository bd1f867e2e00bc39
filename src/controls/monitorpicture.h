#pragma once

#include <functional>

#include <QWidget>

/// The monitor, drawn from the front: frame, stand, and a screen on which somebody paints what a setting does. It is as
/// large as its room allows, with a screen of 16 : 9.
class MonitorPicture : public QWidget
{
    Q_OBJECT
public:
    /// Paints the screen. It is clipped; lengths are points, and one point stands for one pixel of the monitor where a
    /// thing is drawn in its true size.
    using Painter = std::function<void(QPainter &painter, const QRectF &screen)>;

    explicit MonitorPicture(QWidget *parent = nullptr);

    void setPainter(Painter painter);

    /// Where the screen is, in the widget's own points.
    QRectF screenRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF bodyRect() const;

    Painter m_painter;
};
