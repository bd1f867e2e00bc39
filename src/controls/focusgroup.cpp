#include "controls/focusgroup.h"

#include <algorithm>

#include <QAbstractButton>
#include <QKeyEvent>
#include <QScrollArea>

#include "controls/accessiblecontrol.h"

namespace {

bool isUsable(const QWidget *member)
{
    const auto *described = dynamic_cast<const Described *>(member);
    return member->isEnabled() && !member->isHidden() && (!described || described->isUsable());
}

} // namespace

FocusGroup::FocusGroup(QWidget *holder) : QObject(holder)
{
}

void FocusGroup::add(QWidget *member)
{
    m_members.push_back(member);
    member->installEventFilter(this);
    if (const auto *button = qobject_cast<QAbstractButton *>(member))
        connect(button, &QAbstractButton::toggled, this, &FocusGroup::settle);
    connect(member, &QObject::destroyed, this, [this, member] { std::erase(m_members, member); });
    settle();
}

/// The one that has the keyboard in its window, or else the one where it is to come in.
QWidget *FocusGroup::entry() const
{
    const auto find = [this](auto &&fits) {
        const auto found = std::find_if(m_members.begin(), m_members.end(), fits);
        return found == m_members.end() ? nullptr : *found;
    };
    QWidget *focused =
        find([](QWidget *member) { return isUsable(member) && member->window()->focusWidget() == member; });
    QWidget *chosen = find([](QWidget *member) { return isUsable(member) && checkedStateOf(member).value_or(false); });
    return focused ? focused : chosen ? chosen : find([](QWidget *member) { return isUsable(member); });
}

void FocusGroup::settle()
{
    const QWidget *stop = entry();
    for (QWidget *member : m_members)
        member->setFocusPolicy(member == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

bool FocusGroup::move(QWidget *from, int key) const
{
    std::vector<QWidget *> usable;
    std::copy_if(m_members.begin(), m_members.end(), std::back_inserter(usable),
                 [from](QWidget *member) { return member == from || isUsable(member); });
    const auto here = std::find(usable.begin(), usable.end(), from) - usable.begin();
    const auto last = static_cast<std::ptrdiff_t>(usable.size()) - 1;
    std::ptrdiff_t to = here;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        to = std::max<std::ptrdiff_t>(here - 1, 0);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        to = std::min(here + 1, last);
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        to = last;
        break;
    default:
        return false;
    }
    usable[static_cast<std::size_t>(to)]->setFocus(to < here ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    bringIntoSight(usable[static_cast<std::size_t>(to)]);
    return true;
}

/// Buttons of a group of the toolkit's set their policies themselves when they get the focus or are checked: before
/// the keyboard leaves, the one that has it must be the only stop, or Tab would come by again.
bool FocusGroup::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        settle();
        return !(key->modifiers() & ~Qt::KeypadModifier) && move(static_cast<QWidget *>(watched), key->key());
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        settle();
        break;
    default:
        if (event->type() == stateChangedEvent())
            settle();
        break;
    }
    return false;
}

void bringIntoSight(QWidget *control)
{
    for (QWidget *around = control->parentWidget(); around; around = around->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(around))
            area->ensureWidgetVisible(control);
    }
}

void focusInSight(QWidget *control, Qt::FocusReason reason)
{
    control->setFocus(reason);
    bringIntoSight(control);
}
