#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"

/// A small lock beside a control that cannot be used now: what is disabled takes no focus, so this says why, and a
/// press leads to what has to be changed first. Hidden while there is nothing to say.
class LockSign : public PaintedControl<QWidget>
{
    Q_OBJECT
public:
    static constexpr int kSize = 20; // pixels

    explicit LockSign(QWidget *parent = nullptr);

    /// What cannot be used, and the sentence that says why, both translated: together they are its accessible name, the
    /// reason is its tooltip. No reason hides the sign.
    void setReason(const QString &locked, const QString &reason);
    QString reason() const { return toolTip(); }

    QAccessible::Role accessibleRole() const override { return QAccessible::Button; }
    void press() override { Q_EMIT pressed(); }

Q_SIGNALS:
    void pressed();

protected:
    void paintEvent(QPaintEvent *event) override;
};
