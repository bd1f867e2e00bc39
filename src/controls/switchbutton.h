#pragma once

#include <QWidget>

#include "controls/checkedcontrol.h"

/// A two-part switch, 120 x 38: its left half switches off, its right half on.
class SwitchButton : public CheckedControl<QWidget>
{
    Q_OBJECT

public:
    explicit SwitchButton(QWidget *parent = nullptr);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    /// Presses the half that is not active now.
    void press() override;

Q_SIGNALS:
    void sigChecked(bool checked);

protected:
    void pressAt(const QPoint &position) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void switchTo(bool checked);
    void updateTexts();
    void drawBackground(QPainter &painter) const;

    Caption m_leftText;
    Caption m_rightText;
};
