#include "controls/accessiblecontrol.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include "controls/accessibleinterfaces.h"

void describeControlsToAssistiveSoftware()
{
    static const bool installed = (QAccessible::installFactory(&accessibleInterfaceOf), true);
    Q_UNUSED(installed)
}

void describeAs(QWidget *widget, QAccessible::Role role)
{
    describeControlsToAssistiveSoftware();
    widget->setProperty(kAccessibleRole, static_cast<int>(role));
}

std::optional<bool> checkedStateOf(const QWidget *control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return button->isCheckable() ? std::optional(button->isChecked()) : std::nullopt;
    const auto *described = dynamic_cast<const Described *>(control);
    return described ? described->checkedState() : std::nullopt;
}

QEvent::Type stateChangedEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

void announceState(QWidget *control)
{
    QEvent event(stateChangedEvent());
    QCoreApplication::sendEvent(control, &event);
    if (!QAccessible::isActive())
        return;
    QAccessible::State changed;
    changed.checked = true;
    changed.selected = true;
    QAccessibleStateChangeEvent told(control, changed);
    QAccessible::updateAccessibility(&told);
}
