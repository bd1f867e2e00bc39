#pragma once

#include <QFrame>

#include "controls/checkedcontrol.h"

/// An entry of the left bar, 208 x 46, lower in a bar that is too full: icon and caption. It takes a press only while
/// it is enabled for selection.
class LeftTabButton : public CaptionedControl<QFrame>
{
    Q_OBJECT

public:
    /// @p iconBase is the path of the icon without suffix: "<base>.png", "<base>_checked.png", "<base>_disabled.png".
    LeftTabButton(const QString &iconBase, const QString &caption, QWidget *parent = nullptr);

    /// Sets the checked state without a signal; ignored while the button is not enabled for selection.
    void setChecked(bool checked);

    bool isSelectable() const { return m_selectable; }
    /// Whether the button is enabled for selection (true at first). The checked state stays as it is.
    void setSelectable(bool selectable);

    /// Why it cannot be used now, for tooltip and assistive software; empty when it can.
    void setLock(const QString &reason);

    /// Its icon: the path without suffix.
    const QString &icon() const { return m_iconBase; }

    /// See shrinkTogether().
    int captionSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
    bool isUsable() const override { return m_selectable; }
    void press() override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect plate() const;
    void drawBackground(QPainter &painter) const;
    void drawIcon(QPainter &painter) const;

    QString m_iconBase;
    bool m_selectable = true;
};
