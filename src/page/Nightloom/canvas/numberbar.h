#pragma once

#include <optional>

#include <QTabBar>

#include "controls/focusring.h"

class QKeyEvent;

/// The tabs of frames: numbers. As in the program's other bars the arrows, Home and End only move the focus, here an
/// outline around a number, and Space or Enter chooses.
class NumberBar : public QTabBar
{
    Q_OBJECT
public:
    explicit NumberBar(QWidget *parent = nullptr);

protected:
    QSize tabSizeHint(int index) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<int> placeFor(const QKeyEvent &event) const;
    void setFocused(int index);
    void moveTo(int index);
    void bringIntoSight();

    FocusRing m_ring;
    int m_focused = -1; ///< the tab that has the focus while the bar has it; -1 without tabs
};
