#pragma once

#include <optional>

#include <QAccessible>

class QWidget;

/// What assistive software is told about a painted control, and the one action it can ask of it.
class Pressable
{
public:
    virtual ~Pressable() = default;

    /// What the control is: Button, CheckBox, RadioButton.
    virtual QAccessible::Role accessibleRole() const = 0;

    /// Whether it is checked; nothing for a control that cannot be checked.
    virtual std::optional<bool> checkedState() const { return std::nullopt; }

    /// Does exactly what a mouse press does.
    virtual void press() = 0;
};

/// Makes assistive software see Pressable widgets as what they are. Further calls do nothing.
void describeControlsToAssistiveSoftware();

/// Tells assistive software that the checked state of @p control changed.
void announceChecked(QWidget *control);
