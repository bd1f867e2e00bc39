#include "controls/accessiblecontrol.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {
class AccessibleControl : public QAccessibleWidget
{
public:
    AccessibleControl(QWidget *widget, Pressable *control)
        : QAccessibleWidget(widget, control->accessibleRole()), m_control(control)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const std::optional<bool> checked = m_control->checkedState();
        state.checkable = checked.has_value();
        state.checked = checked.value_or(false);
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction() && widget()->isEnabled())
            m_control->press();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    Pressable *m_control;
};

QAccessibleInterface *describe(const QString &, QObject *object)
{
    auto *control = dynamic_cast<Pressable *>(object);
    return control ? new AccessibleControl(static_cast<QWidget *>(object), control) : nullptr;
}
} // namespace

void describeControlsToAssistiveSoftware()
{
    static const bool installed = (QAccessible::installFactory(&describe), true);
    Q_UNUSED(installed)
}

void announceChecked(QWidget *control)
{
    if (!QAccessible::isActive())
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(control, changed);
    QAccessible::updateAccessibility(&event);
}
