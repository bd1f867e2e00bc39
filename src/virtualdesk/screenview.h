#pragma once

#include <QImage>
#include <QWidget>

#include "virtualdesk/picture.h"

namespace virtualdesk {

class SimulatedMonitor;

/// The front of a monitor: a test scene as the panel would show it with its current values.
class ScreenView : public QWidget
{
    Q_OBJECT

public:
    explicit ScreenView(QWidget *parent = nullptr);

    /// Shows the monitor's present state; repaints only what differs.
    void show(const SimulatedMonitor &monitor);

    QSize sizeHint() const override { return {388, 234}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect screenRect() const;
    void develop();

    QImage m_scene;     // the test scene at the size of the screen
    QImage m_developed; // the same with the picture values
    Picture m_picture;
    QString m_caption;  // the scene mode, in the corner of the screen
    QString m_darkness; // why nothing is shown; empty while the screen is lit
};

} // namespace virtualdesk
