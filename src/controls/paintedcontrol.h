#pragma once

#include <QEnterEvent>
#include <QEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "controls/accessiblecontrol.h"
#include "controls/captions.h"
#include "controls/focusring.h"

/// What the painted controls share: the hovered flag, the keyboard focus outline, and one press() for mouse, Space,
/// Enter and assistive software. @p Base is the Qt class that the control is.
template <class Base> class PaintedControl : public Base, public Pressable
{
public:
    explicit PaintedControl(QWidget *parent) : Base(parent)
    {
        describeControlsToAssistiveSoftware();
        Base::setFocusPolicy(Qt::StrongFocus);
        Base::setAttribute(Qt::WA_Hover);
    }

    bool isHovered() const { return m_hovered; }

protected:
    /// The caption whose whole text is shown when it was elided, unless there is a tooltip; null for controls without
    /// one.
    virtual const Caption *shownCaption() const { return nullptr; }

    /// A press of the left button at @p position; controls that care where it fell override this.
    virtual void pressAt(const QPoint &position)
    {
        Q_UNUSED(position)
        press();
    }

    void drawFocus(QPainter &painter, const QRect &rect, qreal radius = 6.0) const
    {
        m_focusRing.draw(painter, rect, radius);
    }

    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Enter:
            setHovered(true);
            break;
        case QEvent::Leave:
        case QEvent::WindowDeactivate:
            setHovered(false);
            break;
        case QEvent::ToolTip:
            if (Base::toolTip().isEmpty() && shownCaption() &&
                shownCaption()->showToolTip(static_cast<QHelpEvent *>(event), this))
                return true;
            break;
        default:
            break;
        }
        return Base::event(event);
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            pressAt(event->position().toPoint());
        else
            event->ignore();
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (isPressKey(event))
            press();
        else
            Base::keyPressEvent(event);
    }

    void focusInEvent(QFocusEvent *event) override { followFocus(event); }
    void focusOutEvent(QFocusEvent *event) override { followFocus(event); }

private:
    void setHovered(bool hovered)
    {
        m_hovered = hovered;
        Base::update();
    }

    void followFocus(const QFocusEvent *event)
    {
        m_focusRing.follow(event);
        Base::update();
    }

    bool m_hovered = false;
    FocusRing m_focusRing;
};
