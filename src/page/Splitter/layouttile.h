#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"
#include "splitter/splitlayout.h"

/// A layout to choose: its zones as a small picture, its name below.
class LayoutTile : public PaintedControl<QWidget>
{
    Q_OBJECT
public:
    LayoutTile(const SplitLayout &layout, bool isChosen, QWidget *parent);

    const SplitLayout &layout() const { return m_layout; }

    QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
    std::optional<bool> checkedState() const override { return m_isChosen; }
    void press() override { Q_EMIT pressed(); }

Q_SIGNALS:
    void pressed();

protected:
    const Caption *shownCaption() const override { return &m_caption; }
    void paintEvent(QPaintEvent *event) override;

private:
    SplitLayout m_layout;
    bool m_isChosen;
    Caption m_caption;
};
