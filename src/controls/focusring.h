#pragma once

#include <QPainter>
#include <QRect>

class QFocusEvent;
class QKeyEvent;
class QWidget;

/// Shows keyboard focus: a thin mint outline that appears when the focus came by Tab or a shortcut, so that mouse
/// clicks leave no outlines behind.
class FocusRing
{
public:
    /// To be called from focusInEvent and focusOutEvent; the owner repaints afterwards.
    void follow(const QFocusEvent *event);

    bool isShown() const { return m_focused && m_byKeyboard; }

    /// Draws the outline just inside @p rect when it is shown.
    void draw(QPainter &painter, const QRect &rect, qreal radius = 6.0) const;

private:
    bool m_focused = false;
    bool m_byKeyboard = false;
};

/// True for the keys that press a control: Space, Return and Enter without modifiers, not repeated by holding.
bool isPressKey(const QKeyEvent *event);

/// For a window that gets a key which the control with the focus left: the toolkit's own buttons leave Enter outside of
/// dialogs. Presses the button; false when the key is none that presses, or no button has the focus.
bool pressFocused(const QKeyEvent *event, const QWidget *window);
