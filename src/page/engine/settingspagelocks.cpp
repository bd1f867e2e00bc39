// The part of the page engine that enables and disables controls by a page's table, and leads to what locks them.

#include <QScrollArea>

#include "controls/locksign.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/settingspage.h"

namespace {

QString reasonOf(const LockRule *rule)
{
    return rule ? QObject::tr(rule->reason) : QString();
}

} // namespace

LockSign *SettingsPage::makeSign(SliderWidget *slider)
{
    auto *sign = new LockSign(slider->parentWidget());
    QSizePolicy policy = sign->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    sign->setSizePolicy(policy);
    connect(sign, &LockSign::pressed, this, [this, slider] { goTo(lockOf(m_locks, slider->name(), deviceState)); });
    return sign;
}

void SettingsPage::applyLocks()
{
    if (m_locks.empty())
        return;
    for (const Slider &entry : m_sliderEntries) {
        if (!entry.sign)
            continue;
        const QString reason = reasonOf(lockOf(m_locks, entry.widget->name(), deviceState));
        entry.widget->setLock(reason);
        entry.sign->setReason(reason);
    }
    for (OptionGroupRow *row : m_groups) {
        QStringList reasons;
        for (const Option &option : row->group().options)
            reasons.append(reasonOf(lockOf(m_locks, *row->group().command, option.value, deviceState)));
        row->setLocks(reasons);
    }
}

/// The control of this page that is to be changed first; null when the page has none.
QWidget *SettingsPage::controlOf(const LockTarget &target) const
{
    if (const OptionGroupRow *row = optionGroup(target.command))
        return row->buttonOf(target.option == LockTarget::kChosenOption ? deviceState.value(target.command)
                                                                        : target.option);
    for (const Slider &entry : m_sliderEntries) {
        if (commandOf(entry) == target.command)
            return entry.widget->slider();
    }
    return nullptr;
}

void SettingsPage::goTo(const LockRule *rule)
{
    if (!rule)
        return;
    QWidget *control = controlOf(rule->target);
    if (!control) {
        Q_EMIT settingWanted(rule->target.command);
        return;
    }
    for (QWidget *around = control->parentWidget(); around; around = around->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(around))
            area->ensureWidgetVisible(control);
    }
    control->setFocus(Qt::ShortcutFocusReason); // which shows the keyboard's place
}
