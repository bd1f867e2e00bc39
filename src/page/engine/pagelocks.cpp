#include "page/engine/pagelocks.h"

#include "controls/focusgroup.h"
#include "controls/locksign.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagecontrols.h"

namespace {

QString reasonOf(const LockRule *rule)
{
    return rule ? QObject::tr(rule->reason) : QString();
}

} // namespace

PageLocks::PageLocks(const PageControls &controls) : m_controls(controls)
{
    connect(&controls, &PageControls::groupLockPressed, this, &PageLocks::onGroupLockPressed);
    connect(&controls, &PageControls::sliderLockPressed, this, &PageLocks::onSliderLockPressed);
}

void PageLocks::apply()
{
    if (m_rules.empty())
        return;
    for (const PageControls::Slider &entry : m_controls.sliderEntries()) {
        if (!entry.sign)
            continue;
        const QString reason = reasonOf(lockOf(m_rules, entry.widget->name(), deviceState));
        entry.widget->setLock(reason);
        entry.sign->setReason(entry.widget->accessibleName(), reason);
    }
    for (OptionGroupRow *row : m_controls.groups()) {
        QStringList reasons;
        for (const Option &option : row->group().options)
            reasons.append(reasonOf(lockOf(m_rules, *row->group().command, option.value, deviceState)));
        row->setLocks(reasons, areLocksKnown(m_rules, *row->group().command, deviceState));
    }
}

/// The control of this page that is to be changed first; null when the page has none.
QWidget *PageLocks::controlOf(const LockTarget &target) const
{
    if (const OptionGroupRow *row = m_controls.group(target.command))
        return row->buttonOf(target.option == LockTarget::kChosenOption ? deviceState.value(target.command)
                                                                        : target.option);
    for (const PageControls::Slider &entry : m_controls.sliderEntries()) {
        if (entry.command() == target.command)
            return entry.widget->slider();
    }
    return nullptr;
}

void PageLocks::onGroupLockPressed(const OptionGroupRow *row)
{
    for (const Option &option : row->group().options) {
        if (const LockRule *rule = lockOf(m_rules, *row->group().command, option.value, deviceState))
            return goTo(rule);
    }
}

void PageLocks::onSliderLockPressed(const SliderWidget *slider)
{
    goTo(lockOf(m_rules, slider->name(), deviceState));
}

void PageLocks::goTo(const LockRule *rule)
{
    if (!rule)
        return;
    QWidget *control = controlOf(rule->target);
    if (!control || !control->isVisible()) { // it may stand on another panel
        Q_EMIT settingWanted(rule->target.command);
        return;
    }
    focusInSight(control, Qt::ShortcutFocusReason); // which shows the keyboard's place
}
