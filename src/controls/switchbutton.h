#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"

/// A two-part switch, 120 x 38: its left half switches off, its right half on.
class SwitchButton : public PaintedControl<QWidget>
{
    Q_OBJECT

public:
    explicit SwitchButton(QWidget *parent = nullptr);

    bool isChecked() const { return m_checked; }
    /// Sets the checked state without a signal.
    void setChecked(bool checked);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    std::optional<bool> checkedState() const override { return m_checked; }
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
    bool m_checked = false;
};
