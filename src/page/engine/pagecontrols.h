#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "page/engine/lockrules.h"
#include "page/engine/pagetable.h"

class BoundTexts;
class LockSign;
class OptionGroupRow;
class QLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;
class SliderWidget;

/// The controls of a page: built from its tables, and found by what they stand for. What they show and send is the
/// page's.
class PageControls : public QObject
{
    Q_OBJECT
public:
    struct Slider
    {
        SliderSpec spec;
        SliderWidget *widget;
        LockSign *sign; ///< null for one that no rule locks
        std::function<std::optional<Command>()> choose;

        /// Which command its value goes to; nothing to send none.
        std::optional<Command> command() const { return choose ? choose() : spec.command; }
    };

    struct Choice
    {
        Command command;
        int value;
    };

    /// Builds a part that the tables only name; null for a name that the page does not know.
    using BuildPart = std::function<QWidget *(const char *name)>;

    /// The controls' texts are bound to @p texts.
    explicit PageControls(BoundTexts &texts);

    /// Builds the sections, in order, into a column; those that the monitor lacks are hidden. Sliders that the rules
    /// may lock get a sign.
    void build(std::span<const Section> sections, std::span<const LockRule> locks, QVBoxLayout *column,
               const BuildPart &buildPart);

    /// Draws the captions before the settings of one panel in one size, after their texts have changed.
    void shrinkCaptions() const;

    // In the order of their creation.

    const std::vector<OptionGroupRow *> &groups() const { return m_groups; }
    const std::vector<OptionGroupRow *> &ownGroups() const { return m_ownGroups; } ///< without a command
    const std::vector<SliderWidget *> &sliders() const { return m_sliders; }
    const std::vector<Slider> &sliderEntries() const { return m_sliderEntries; }

    // Null when there is none.

    OptionGroupRow *group(Command command) const;
    OptionGroupRow *ownGroup(const char *label) const;
    SliderWidget *slider(const char *name) const;
    const Slider *sliderEntry(const QString &name) const;
    SliderWidget *slider(Command command) const; ///< whose value goes to it now

    /// What the controls stand for that are in sight when the page is: groups first.
    std::vector<Command> commandsInSight(const QWidget *page) const;

    /// Shows what the monitor has, and hides what it lacks.
    void followCapability();

    /// From now on the slider's command is chosen anew each time.
    void chooseCommand(const char *sliderName, std::function<std::optional<Command>()> choose);

    /// The group and option that an object name stands for. A name of a group without an option gives what the group
    /// holds.
    std::optional<Choice> choiceOf(const QString &objectName) const;

    /// A setting and its value in the words of the control that stands for it; empty when there is none.
    QString wordsFor(Command command, int value) const;

Q_SIGNALS:
    void optionClicked(QPushButton *button);
    void ownOptionClicked(const char *group, int value);
    void sliderChanged(const QString &name, int value, bool released);
    void sliderHoldLost(const QString &name);

    // The sign of what cannot be used is pressed.

    void groupLockPressed(const OptionGroupRow *row);
    void sliderLockPressed(const SliderWidget *slider);

private:
    void addOptions(const OptionGroup &group, QVBoxLayout *column);
    void addOwnOptions(const OptionGroup &group, QVBoxLayout *column);
    void addSliders(const SliderGrid &grid, std::span<const LockRule> locks, QVBoxLayout *column);
    QLayout *makeSliderCell(const SliderSpec &spec, const SliderGrid &grid, std::span<const LockRule> locks,
                            QWidget *parent);
    LockSign *makeSign(SliderWidget *slider);

    BoundTexts &m_texts;
    std::vector<const QWidget *> m_panels; ///< what the controls were built on
    std::vector<OptionGroupRow *> m_groups;
    std::vector<OptionGroupRow *> m_ownGroups;
    std::vector<SliderWidget *> m_sliders;
    std::vector<Slider> m_sliderEntries;
};
