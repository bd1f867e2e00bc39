#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"

/// A plain square check box, 20 x 20 unless the owner sets another fixed size; every press toggles it.
class SwitchButtonRectangle : public PaintedControl<QWidget>
{
    Q_OBJECT

public:
    explicit SwitchButtonRectangle(QWidget *parent = nullptr);

    bool isChecked() const { return m_checked; }
    /// Sets the checked state without a signal.
    void setChecked(bool checked);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    std::optional<bool> checkedState() const override { return m_checked; }
    void press() override;

Q_SIGNALS:
    void sigClicked(bool checked);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_checked = false;
};
