#include "controls/accessibleinterfaces.h"

#include <functional>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QButtonGroup>
#include <QComboBox>

#include "controls/accessiblecontrol.h"
#include "controls/accessibleentries.h"
#include "controls/focusgroup.h"
#include "controls/nowheelslider.h"

namespace {

/// The role that describeAs() gave a widget, or else the usual one.
QAccessible::Role roleOf(const QObject *object, QAccessible::Role usual)
{
    const QVariant given = object->property(kAccessibleRole);
    return given.isValid() ? static_cast<QAccessible::Role>(given.toInt()) : usual;
}

/// What all of ours have in common: the value in words, which not every system's interface hands on and which the
/// description begins with therefore; and an action that does what the mouse does.
class AccessiblePart : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text which) const override
    {
        const QString value = valueText();
        if (which == QAccessible::Value)
            return value;
        const QString text = QAccessibleWidget::text(which);
        if (which != QAccessible::Description)
            return text;
        QStringList said = {value, text == this->text(QAccessible::Name) ? QString() : text}; // as a tooltip may be
        said.removeAll(QString());
        return said.join(QStringLiteral(". "));
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names = actions() + names;
        return names;
    }

    /// What is pressed may ask the user something: whoever asked for it does not wait for the answer. Some systems ask
    /// what can be checked to toggle.
    void doAction(const QString &asked) override
    {
        const QString name = asked == toggleAction() ? pressAction() : asked;
        if (!actions().contains(name)) {
            QAccessibleWidget::doAction(name);
            return bringIntoSight(widget()); // it may have the focus now, and Tab did not bring it there
        }
        QMetaObject::invokeMethod(
            widget(),
            [control = widget(), act = actionFor(name)] {
                if (control->isEnabled())
                    act();
            },
            Qt::QueuedConnection);
    }

protected:
    virtual QString valueText() const { return {}; }
    virtual QStringList actions() const { return {}; }
    virtual std::function<void()> actionFor(const QString &) { return {}; }
};

class AccessibleControl : public AccessiblePart
{
public:
    AccessibleControl(QWidget *widget, Described *control)
        : AccessiblePart(widget, control->accessibleRole()), m_control(control),
          m_pressable(dynamic_cast<Pressable *>(control))
    {
    }

    /// A tab is selected, everything else is checked.
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const std::optional<bool> checked = m_control->checkedState();
        const bool isTab = role() == QAccessible::PageTab;
        state.checkable = checked && !isTab;
        state.selectable = checked && isTab;
        state.checked = !isTab && checked.value_or(false);
        state.selected = isTab && checked.value_or(false);
        state.disabled = state.disabled || !m_control->isUsable();
        return state;
    }

    int childCount() const override { return 0; }

protected:
    QString valueText() const override { return m_control->valueText(); }
    QStringList actions() const override { return m_pressable ? QStringList{pressAction()} : QStringList(); }
    std::function<void()> actionFor(const QString &) override
    {
        return [pressed = m_pressable] { pressed->press(); };
    }

private:
    Described *m_control;
    Pressable *m_pressable; ///< the same; null for one that only tells
};

/// The toolkit's own would only check a checkable button, which sends nothing.
class AccessibleButton : public AccessiblePart
{
public:
    explicit AccessibleButton(QWidget *button) : AccessiblePart(button) {}

    QAccessible::Role role() const override
    {
        const QButtonGroup *group = button()->group();
        const bool isChoice = button()->isCheckable() && group && group->exclusive();
        return roleOf(button(), isChoice ? QAccessible::RadioButton : QAccessible::Button);
    }

    QString text(QAccessible::Text which) const override
    {
        const QString text = AccessiblePart::text(which);
        return text.isEmpty() && which == QAccessible::Name ? button()->text().remove(QLatin1Char('&')).trimmed()
                                                            : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.pressed = button()->isDown();
        return state;
    }

protected:
    QStringList actions() const override { return {pressAction()}; }
    std::function<void()> actionFor(const QString &) override
    {
        return [button = button()] { button->click(); };
    }

private:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(object()); }
};

/// A step, or a value that is set, is a movement of its own with an end, as one by a key is.
class AccessibleSlider : public AccessiblePart, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(QWidget *slider) : AccessiblePart(slider, QAccessible::Slider) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : AccessiblePart::interface_cast(type);
    }

    QVariant currentValue() const override { return slider()->value(); }
    QVariant minimumValue() const override { return slider()->minimum(); }
    QVariant maximumValue() const override { return slider()->maximum(); }
    QVariant minimumStepSize() const override { return slider()->singleStep(); }
    void setCurrentValue(const QVariant &value) override
    {
        if (slider()->isEnabled())
            slider()->moveAtOnce(value.toInt());
    }

protected:
    QString valueText() const override { return slider()->valueText(); }
    QStringList actions() const override { return {increaseAction(), decreaseAction()}; }

    /// What it does not know cannot be stepped.
    std::function<void()> actionFor(const QString &name) override
    {
        const int step = name == increaseAction() ? slider()->singleStep() : -slider()->singleStep();
        return [moved = slider(), step] {
            if (!moved->isUnknown())
                moved->moveAtOnce(moved->value() + step);
        };
    }

private:
    NoWheelSlider *slider() const { return static_cast<NoWheelSlider *>(object()); }
};

/// The toolkit's own has the chosen entry for a name on some systems, and then nothing tells what it is chosen for.
class AccessibleBox : public AccessiblePart
{
public:
    explicit AccessibleBox(QWidget *box) : AccessiblePart(box, QAccessible::ComboBox) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        return state;
    }

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child->object() == box()->view() ? 0 : -1;
    }

protected:
    QString valueText() const override { return box()->currentText(); }
    QStringList actions() const override { return {pressAction()}; }
    std::function<void()> actionFor(const QString &) override
    {
        return [box = box()] { box->showPopup(); };
    }

private:
    QComboBox *box() const { return static_cast<QComboBox *>(object()); }
};

class AccessibleHolder : public AccessiblePart
{
public:
    explicit AccessibleHolder(QWidget *widget) : AccessiblePart(widget) {}
    QAccessible::Role role() const override { return roleOf(object(), QAccessible::Client); }

    /// What hands the focus on never has it.
    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePart::state();
        state.focusable = state.focusable && !widget()->focusProxy();
        return state;
    }
};

template <class Kind> QAccessibleInterface *make(QWidget *widget)
{
    return new Kind(widget);
}

/// Which class is told of by which of the above; a class that is derived from one of these is told of as that is.
constexpr struct
{
    const char *className;
    QAccessibleInterface *(*make)(QWidget *widget);
} kKinds[] = {{"QPushButton", &make<AccessibleButton>},  {"QComboBox", &make<AccessibleBox>},
              {"QListView", &make<AccessibleList>},      {"QTabBar", &make<AccessibleTabs>},
              {"QTabWidget", &make<AccessibleHolder>},   {"QKeySequenceEdit", &make<AccessibleHolder>},
              {"NoWheelSlider", &make<AccessibleSlider>}};

} // namespace

QAccessibleInterface *accessibleInterfaceOf(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (auto *control = dynamic_cast<Described *>(object))
        return new AccessibleControl(widget, control);
    for (const auto &kind : kKinds) {
        if (className == QLatin1String(kind.className))
            return kind.make(widget);
    }
    const bool isButton = qobject_cast<const QAbstractButton *>(object) != nullptr;
    return !isButton && object->property(kAccessibleRole).isValid() ? new AccessibleHolder(widget) : nullptr;
}
