#pragma once

#include <vector>

#include <QAccessibleWidget>

class QListView;
class QTabBar;

/// The property of a bar of tabs that says which one the keyboard is at: an int. Without it that is the one that is
/// chosen.
inline constexpr char kFocusedEntry[] = "focusedEntry";

/// A widget whose entries are no widgets: each is told of by an interface of its own, made when it is first asked for.
class AccessibleEntries : public QAccessibleWidget
{
public:
    AccessibleEntries(QWidget *widget, QAccessible::Role role, QAccessible::Role entryRole);
    ~AccessibleEntries() override;

    QAccessible::State state() const override;
    int childCount() const override = 0;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;

    virtual QString entryText(int index, QAccessible::Text which) const = 0;
    virtual QAccessible::State entryState(int index) const = 0;
    /// In the widget's own points.
    virtual QRect entryRect(int index) const = 0;
    /// Does what a press of the mouse does.
    virtual void press(int index) = 0;

    QAccessible::Role entryRole() const { return m_entryRole; }
    QWidget *shownOn() const { return widget(); }

protected:
    /// The state that an entry has of the widget that it is in.
    QAccessible::State placeState(int index) const;

private:
    const QAccessible::Role m_entryRole;
    mutable std::vector<QAccessible::Id> m_entries; ///< 0 for one that nobody has asked for
};

/// A bar of tabs, of which one is chosen. The toolkit's own has that one's name for a name, and says that it has the
/// focus wherever the keyboard is.
class AccessibleTabs : public AccessibleEntries
{
public:
    explicit AccessibleTabs(QWidget *bar);
    int childCount() const override;
    QString entryText(int index, QAccessible::Text which) const override;
    QAccessible::State entryState(int index) const override;
    QRect entryRect(int index) const override;
    void press(int index) override;

private:
    QTabBar *bar() const;
};

/// A list, which has the name of its box if it belongs to one. The toolkit's own says of every entry that it can be
/// chosen, and of the current one that it has the focus.
class AccessibleList : public AccessibleEntries
{
public:
    explicit AccessibleList(QWidget *list);
    QString text(QAccessible::Text which) const override;
    int childCount() const override;
    QString entryText(int index, QAccessible::Text which) const override;
    QAccessible::State entryState(int index) const override;
    QRect entryRect(int index) const override;
    void press(int index) override;

private:
    QListView *list() const;
    QModelIndex at(int index) const;
};
