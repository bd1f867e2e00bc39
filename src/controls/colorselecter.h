#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

#include "controls/paintedcontrol.h"

/// A row of colour swatches, one of which may be selected. Arrow keys move the highlight, Space selects.
class ColorSelecter : public PaintedControl<QWidget>
{
    Q_OBJECT

public:
    /// @p swatchPictures holds the path of each swatch's picture (28 x 28), left to right.
    explicit ColorSelecter(const QStringList &swatchPictures, QWidget *parent = nullptr);

    int count() const { return int(m_pictures.size()); }

    /// The selected swatch, -1 for none.
    int selectedIndex() const { return m_selected; }
    /// Selects without a signal; an index out of range selects none.
    void setSelectedIndex(int index);

    /// The swatch under the pointer or the arrow keys, -1 for none.
    int hoveredIndex() const { return m_hoveredIndex; }

    /// Where the swatch @p index is painted; empty for an index out of range.
    QRect swatchRect(int index) const;

    /// The colours' names in order, for tooltips and assistive software.
    void setSwatchNames(const QStringList &names);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::ColorChooser; }
    /// Which swatch is selected; the description names the highlighted one.
    QString valueText() const override;
    /// Selects the highlighted swatch.
    void press() override;

Q_SIGNALS:
    void sigClicked(int index);

    /// Another swatch is under the pointer or the arrow keys; -1 for none.
    void sigHovered(int index);

protected:
    bool event(QEvent *event) override;
    void pressAt(const QPoint &position) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int indexAt(const QPoint &position) const;
    void setHoveredIndex(int index);
    void select(int index);
    void drawSwatch(QPainter &painter, int index) const;

    QStringList m_pictures;
    QStringList m_names;
    QList<QRect> m_rects;
    int m_selected = -1;
    int m_hoveredIndex = -1;
};
