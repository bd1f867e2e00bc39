#include "controls/accessibleentries.h"

#include <algorithm>

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>
#include <QTabBar>

namespace {

class AccessibleEntry : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleEntry(AccessibleEntries *holder, int index) : m_holder(holder), m_index(index) {}

    bool isValid() const override { return m_holder->isValid() && m_index < m_holder->childCount(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_holder->window(); }
    QAccessibleInterface *parent() const override { return m_holder; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}

    QString text(QAccessible::Text which) const override
    {
        return isValid() ? m_holder->entryText(m_index, which) : QString();
    }
    QAccessible::Role role() const override { return m_holder->entryRole(); }

    QAccessible::State state() const override
    {
        if (isValid())
            return m_holder->entryState(m_index);
        QAccessible::State gone;
        gone.invalid = true;
        return gone;
    }

    QRect rect() const override
    {
        const QRect own = isValid() ? m_holder->entryRect(m_index) : QRect();
        return {m_holder->shownOn()->mapToGlobal(own.topLeft()), own.size()};
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

    QStringList actionNames() const override
    {
        return state().invalid || state().disabled ? QStringList() : QStringList{pressAction()};
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    /// What is pressed may ask the user something: whoever asked for it does not wait for the answer.
    void doAction(const QString &name) override
    {
        if (!actionNames().contains(name))
            return;
        QMetaObject::invokeMethod(
            m_holder->shownOn(), [holder = m_holder, index = m_index] { holder->press(index); }, Qt::QueuedConnection);
    }

    int index() const { return m_index; }

private:
    AccessibleEntries *const m_holder; ///< which owns it
    const int m_index;
};

} // namespace

AccessibleEntries::AccessibleEntries(QWidget *widget, QAccessible::Role role, QAccessible::Role entryRole)
    : QAccessibleWidget(widget, role), m_entryRole(entryRole)
{
}

AccessibleEntries::~AccessibleEntries()
{
    for (const QAccessible::Id id : m_entries) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

/// The keyboard is at one of its entries, and at nothing else.
QAccessible::State AccessibleEntries::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.focused = state.focused && childCount() == 0;
    return state;
}

QAccessibleInterface *AccessibleEntries::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    m_entries.resize(std::max(m_entries.size(), static_cast<std::size_t>(index) + 1), 0);
    QAccessible::Id &id = m_entries[static_cast<std::size_t>(index)];
    if (id == 0)
        id =
            QAccessible::registerAccessibleInterface(new AccessibleEntry(const_cast<AccessibleEntries *>(this), index));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface *AccessibleEntries::childAt(int x, int y) const
{
    const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
    for (int i = 0; i < childCount(); ++i) {
        if (entryRect(i).contains(point))
            return child(i);
    }
    return nullptr;
}

int AccessibleEntries::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *entry = dynamic_cast<const AccessibleEntry *>(child);
    return entry && entry->parent() == this ? entry->index() : -1;
}

QAccessibleInterface *AccessibleEntries::focusChild() const
{
    for (int i = 0; widget()->hasFocus() && i < childCount(); ++i) {
        if (entryState(i).focused)
            return child(i);
    }
    return QAccessibleWidget::focusChild();
}

QAccessible::State AccessibleEntries::placeState(int index) const
{
    const QAccessible::State whole = QAccessibleWidget::state();
    QAccessible::State state;
    state.invisible = whole.invisible;
    state.disabled = whole.disabled;
    state.offscreen = !entryRect(index).intersects(widget()->rect());
    return state;
}

AccessibleTabs::AccessibleTabs(QWidget *bar) : AccessibleEntries(bar, QAccessible::PageTabList, QAccessible::PageTab)
{
}

QTabBar *AccessibleTabs::bar() const
{
    return static_cast<QTabBar *>(widget());
}

int AccessibleTabs::childCount() const
{
    return bar()->count();
}

QString AccessibleTabs::entryText(int index, QAccessible::Text which) const
{
    const QString given = bar()->accessibleTabName(index);
    if (which == QAccessible::Name)
        return given.isEmpty() ? bar()->tabText(index).remove(u'&') : given;
    return which == QAccessible::Description ? bar()->tabToolTip(index) : QString();
}

QAccessible::State AccessibleTabs::entryState(int index) const
{
    const QVariant given = bar()->property(kFocusedEntry);
    QAccessible::State state = placeState(index);
    state.disabled = state.disabled || !bar()->isTabEnabled(index);
    state.focusable = true;
    state.focused = bar()->hasFocus() && index == (given.isValid() ? given.toInt() : bar()->currentIndex());
    state.selectable = true;
    state.selected = index == bar()->currentIndex();
    return state;
}

QRect AccessibleTabs::entryRect(int index) const
{
    return bar()->tabRect(index);
}

void AccessibleTabs::press(int index)
{
    bar()->setCurrentIndex(index);
}

AccessibleList::AccessibleList(QWidget *list) : AccessibleEntries(list, QAccessible::List, QAccessible::ListItem)
{
}

QString AccessibleList::text(QAccessible::Text which) const
{
    const QString own = AccessibleEntries::text(which);
    if (which != QAccessible::Name || !own.isEmpty())
        return own;
    const QWidget *box = list();
    while (box && !qobject_cast<const QComboBox *>(box))
        box = box->parentWidget();
    return box ? box->accessibleName() : QString();
}

QListView *AccessibleList::list() const
{
    return static_cast<QListView *>(widget());
}

QModelIndex AccessibleList::at(int index) const
{
    return list()->model()->index(index, list()->modelColumn(), list()->rootIndex());
}

int AccessibleList::childCount() const
{
    return list()->model() ? list()->model()->rowCount(list()->rootIndex()) : 0;
}

QString AccessibleList::entryText(int index, QAccessible::Text which) const
{
    return which == QAccessible::Name          ? at(index).data().toString()
           : which == QAccessible::Description ? at(index).data(Qt::ToolTipRole).toString()
                                               : QString();
}

QAccessible::State AccessibleList::entryState(int index) const
{
    const QModelIndex entry = at(index);
    QAccessible::State state = placeState(index);
    state.disabled = state.disabled || !entry.flags().testFlag(Qt::ItemIsEnabled);
    state.checked = entry.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    state.focusable = state.selectable = !state.disabled;
    state.focused = list()->hasFocus() && entry == list()->currentIndex();
    state.selected = list()->selectionModel()->isSelected(entry);
    return state;
}

QRect AccessibleList::entryRect(int index) const
{
    const QRect inView = list()->visualRect(at(index));
    return {list()->viewport()->mapTo(list(), inView.topLeft()), inView.size()};
}

/// As by Return, which chooses in a box's list what the keyboard is at.
void AccessibleList::press(int index)
{
    list()->setCurrentIndex(at(index));
    QKeyEvent chosen(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(list(), &chosen);
}
