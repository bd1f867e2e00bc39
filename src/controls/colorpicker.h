#pragma once

#include <QColor>
#include <QWidget>

#include "controls/paintedcontrol.h"

/// A framed colour, 56 x 34. A press on the swatch asks the user for another one.
class ColorPicker : public PaintedControl<QWidget>
{
    Q_OBJECT

public:
    explicit ColorPicker(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    /// Sets the colour without a signal; an invalid colour is ignored.
    void setColor(const QColor &color);

    /// Nobody knows the colour: a dash stands in its place until it is set, or the user chooses one.
    void setUnknown();

    /// The part of the control that is filled with the colour and takes presses.
    QRect swatchRect() const { return m_swatchRect; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ColorChooser; }
    void press() override { onPickColor(); }

public Q_SLOTS:
    /// Asks for a colour and takes it over; a cancelled dialog changes nothing.
    void onPickColor();

Q_SIGNALS:
    void sigColorChanged(QColor color);

protected:
    /// Asks the user for a colour, starting from the present one. Invalid when the user cancelled.
    virtual QColor askColor();

    void pressAt(const QPoint &position) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color = Qt::white;
    bool m_isKnown = true;
    QRect m_swatchRect;
};
