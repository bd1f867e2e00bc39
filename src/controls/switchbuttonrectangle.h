#pragma once

#include <QWidget>

#include "controls/checkedcontrol.h"

/// A plain square check box, 20 x 20 unless the owner sets another fixed size; every press toggles it.
class SwitchButtonRectangle : public CheckedControl<QWidget>
{
    Q_OBJECT

public:
    explicit SwitchButtonRectangle(QWidget *parent = nullptr);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    void press() override;

Q_SIGNALS:
    void sigClicked(bool checked);

protected:
    void paintEvent(QPaintEvent *event) override;
};
