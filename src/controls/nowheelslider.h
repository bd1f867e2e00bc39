#pragma once

#include <QColor>
#include <QSlider>

#include "controls/focusring.h"

/// A painted horizontal slider that leaves the mouse wheel to the page around it.
/// A click on the groove jumps there. isSliderDown() is true while the user changes the value, by mouse or by
/// keyboard: from sliderPressed() to sliderReleased(), which for a key is when it is let go. One that is locked or goes
/// out of sight meanwhile is not released: its hold is lost.
class NoWheelSlider : public QSlider
{
    Q_OBJECT

public:
    static constexpr int kGrooveInset = 10; ///< pixels before the groove and behind it, for the handle

    explicit NoWheelSlider(QWidget *parent = nullptr);

    /// Colour of the filled part and the handle's ring; an invalid colour (the default) means the mint gradient.
    void setAccent(const QColor &accent);

    bool isUnknown() const { return m_unknown; }
    /// Shows a hollow, dimmed handle: the value was not read yet.
    void setUnknown(bool unknown);

    /// What the value counts, translated, such as "%1 s"; by itself it is a percentage, or so many of the most: "%1 of
    /// %2".
    void setUnit(const QString &pattern);

    /// The value in words, translated, with its unit.
    QString valueText() const;

    /// Has the groove reach both ends of the slider, for where nothing stands before it; the handle stays inside.
    void setWholeGroove(bool whole);

    /// Moves there as by a key: from sliderPressed() to sliderReleased().
    void moveAtOnce(int value);

    /// Takes it out of the user's hand, if it is held.
    void loseHold();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Whoever holds it cannot set it any more; where it stands by now was not wanted to the end.
    void holdLost();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect pathRect() const;
    QRect grooveRect() const;
    QPoint handleCentre() const;
    int valueAt(int x) const;
    void drawGroove(QPainter &painter) const;
    void drawHandle(QPainter &painter) const;
    void drawRing(QPainter &painter, const QRect &handle) const;

    QColor m_accent;
    QString m_unit;
    FocusRing m_focusRing;
    /// The key that holds the slider down, 0 for none.
    int m_heldKey = 0;
    /// From the handle's centre to where the mouse took hold of it.
    int m_grabOffset = 0;
    bool m_unknown = false;
    bool m_wholeGroove = false;
};
