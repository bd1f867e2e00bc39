#pragma once

#include <optional>

#include <QAccessible>
#include <QEvent>
#include <QString>

class QAbstractButton;
class QWidget;

/// What assistive software is told of a control whose class alone says too little. Its name is the accessible name of
/// the widget, and what is inside of it is its own affair.
class Described
{
public:
    virtual ~Described() = default;

    /// What the control is: Button, CheckBox, RadioButton, PageTab, Canvas.
    virtual QAccessible::Role accessibleRole() const = 0;

    /// Whether it is checked; nothing for a control that cannot be checked.
    virtual std::optional<bool> checkedState() const { return std::nullopt; }

    /// Its value in words, translated, with the unit; empty for a control without one.
    virtual QString valueText() const { return {}; }

    /// Whether it can be used now, as far as it is enabled.
    virtual bool isUsable() const { return true; }
};

/// A painted control with one action that assistive software can ask of it.
class Pressable : public Described
{
public:
    /// Does exactly what a mouse press does.
    virtual void press() = 0;
};

/// Makes assistive software see controls as what they are: Described ones, buttons, sliders, and what describeAs()
/// names. Further calls do nothing.
void describeControlsToAssistiveSoftware();

/// Says what a widget is that only holds others, or a button that is not what its class says. To be called before it
/// gets a text.
void describeAs(QWidget *widget, QAccessible::Role role);

/// Whether a control, painted or a button, is checked; nothing for one that cannot be.
std::optional<bool> checkedStateOf(const QWidget *control);

/// Sent to a Described control whose checked state, or whose being usable, has changed.
QEvent::Type stateChangedEvent();

/// Tells assistive software, and whoever watches its events, that the state of @p control changed.
void announceState(QWidget *control);
