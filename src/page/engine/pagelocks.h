#pragma once

#include <QObject>

#include "page/engine/lockrules.h"

class OptionGroupRow;
class PageControls;
class QWidget;
class SliderWidget;

/// Enables and disables the controls of a page by its table, and leads to what locks them.
class PageLocks : public QObject
{
    Q_OBJECT
public:
    explicit PageLocks(const PageControls &controls);

    void setRules(std::span<const LockRule> rules) { m_rules = rules; }
    std::span<const LockRule> rules() const { return m_rules; }

    /// Locks and unlocks by what is known of the monitor now.
    void apply();

Q_SIGNALS:
    /// The user wants to go to a setting that is not in sight.
    void settingWanted(Command command);

private:
    void onGroupLockPressed(const OptionGroupRow *row);
    void onSliderLockPressed(const SliderWidget *slider);
    void goTo(const LockRule *rule);
    QWidget *controlOf(const LockTarget &target) const;

    const PageControls &m_controls;
    std::span<const LockRule> m_rules;
};
