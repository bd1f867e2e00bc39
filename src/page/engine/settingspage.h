#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <QLabel>
#include <QPushButton>

#include "page/engine/boundtexts.h"
#include "page/engine/page.h"
#include "page/engine/pagecontrols.h"
#include "page/engine/pagelocks.h"
#include "page/engine/pageresult.h"
#include "page/engine/pagevalues.h"

class CommandQueue;
class PageHead;
class UndoBar;

/// What every page of monitor settings is: controls built from tables, filled from the snapshot without sending, and
/// one command for each action of the user. A page derives from it, hands it its sections and adds its exceptions.
class SettingsPage : public QLabel, public Page
{
    Q_OBJECT
public:
    /// The queue carries the values of dragged sliders; the window owns the one that all pages share.
    explicit SettingsPage(CommandQueue &queue, QWidget *parent = nullptr);

    /// Fills every control from the snapshot. Sends nothing.
    void updateInterfaceData() override;

    /// Shows every text in the language of now.
    void updateControlText() override;

    /// On pages that ask at all.
    void reconcile() override;

    QWidget *widget() override { return this; }

    /// The controls of the monitor's settings in the order of their creation.
    const std::vector<OptionGroupRow *> &optionGroups() const { return m_controls.groups(); }
    const std::vector<SliderWidget *> &sliders() const { return m_controls.sliders(); }

    OptionGroupRow *optionGroup(Command command) const { return m_controls.group(command); }
    /// Options without a command, by their label.
    OptionGroupRow *ownGroup(const char *label) const { return m_controls.ownGroup(label); }
    SliderWidget *slider(const char *name) const { return m_controls.slider(name); }
    SliderWidget *slider(Command command) const { return m_controls.slider(command); }

    /// A value as the page names it that offers it; empty where it offers none.
    virtual QString optionText(Command command, int value) const;

    /// What is said under the title, such as why something was not done; empty when there is nothing to say.
    QString notice() const { return m_result.text(); }

    /// The line that offers the way back from a risky change.
    UndoBar *undoBar() const { return m_undoBar; }

Q_SIGNALS:
    /// The user wants to go to a setting that another page or the window has.
    void settingWanted(Command command);

protected:
    using Rule = std::function<void(int value)>;

    /// While it lives the page moves its own sliders, and the slider slot does nothing.
    class Updating
    {
    public:
        explicit Updating(SettingsPage &page) : m_page(page), m_before(page.m_updating) { page.m_updating = true; }
        ~Updating() { m_page.m_updating = m_before; }
        Q_DISABLE_COPY_MOVE(Updating)

    private:
        SettingsPage &m_page;
        bool m_before;
    };

    /// To be called before the sections are built: by these their controls are enabled and disabled.
    void setLocks(std::span<const LockRule> locks) { m_locks.setRules(locks); }

    /// Builds the sections, in order, into a column; those that the monitor lacks are hidden.
    void buildSections(std::span<const Section> sections, QVBoxLayout *column);

    /// To be called where a page begins: its title, its sentence, and what there is to say.
    PageHead *addHead(QVBoxLayout *column);

    /// To be called where a page ends: from then on it offers the way back from risky changes.
    void addUndoBar(QVBoxLayout *column);

    /// Builds a part that the tables only name; null for a name that the page does not know.
    virtual QWidget *buildPart(const char *name);

    /// Which option of a group without a command is set; nothing while that is not known.
    virtual std::optional<int> ownValue(const char *) { return std::nullopt; }

    /// The user chose an option of such a group. What is set then is shown as soon as this returns.
    virtual void onButtonClicked(const char *, int) {}

    /// Shows what is set of the options without a command.
    void showOwnValues();

    // What there is to say under the title: see PageResult.

    void showResult(bool ok, const QString &again = QString(), std::function<void()> tryAgain = {})
    {
        m_result.show(ok, again, std::move(tryAgain));
    }
    void showNotice(const QString &text, std::function<void()> tryAgain = {})
    {
        m_result.tell(text, std::move(tryAgain));
    }

    /// A value that the page shows, or what is known about it, has changed; its own controls show it already.
    virtual void followValue(Command) {}

    /// Whether what the snapshot holds now is what the controls of this page show.
    virtual bool showsValues() const { return true; }

    /// See PageValues::Rules.
    virtual bool keepsContents() const { return false; }

    /// From now on, whenever the page is shown, what is in sight is asked for in the background.
    void askWhenShown() { m_asksWhenShown = true; }

    /// From now on the sliders send no faster than CommandQueue::postPaced does.
    void paceSliders() { m_paced = true; }

    /// What is to be said beside a value; where time alone changes that, the value is shown again then.
    Mark markOf(Command command) const { return m_values.markOf(command); }

    void showEvent(QShowEvent *event) override;

    /// Exceptions of a page: what happens before a command's value is sent, and after it.
    void beforeSending(Command command, Rule rule) { m_before[command] = std::move(rule); }
    void afterSending(Command command, Rule rule) { m_after[command] = std::move(rule); }

    /// When the rule says true, an option of the command is not sent and nothing changes; the rule tells the user why.
    /// It rests on what the monitor has: see monitorHas.
    void refuseWhen(Command command, std::function<bool(int value)> rule) { m_vetoes[command] = std::move(rule); }

    /// Whether the monitor has a value: asks it once, unless it told another one.
    static bool monitorHas(Command command, int value);

    /// Which command a slider's value goes to; nothing to send none. For sliders that serve several commands.
    void chooseCommand(const char *sliderName, std::function<std::optional<Command>()> choose)
    {
        m_controls.chooseCommand(sliderName, std::move(choose));
    }

    /// Sends a command at once, behind whatever a drag has left to send. True when the monitor took it.
    bool send(Command command, int value);

    /// Sets a slider to what is known of a command, under Updating; one that the user holds is left alone.
    void fillSlider(SliderWidget *slider, Command command) { m_values.fill(slider, command); }

    CommandQueue &queue() { return m_queue; }
    BoundTexts &texts() { return m_texts; }
    bool isUpdating() const { return m_updating; }

private Q_SLOTS:
    void onOptionClicked(QPushButton *button);
    void onOwnOptionClicked(const char *group, int value);
    void onSliderChanged(const QString &name, int value, bool released);
    void onSliderHoldLost(const QString &name);
    void onSent(Command command, int value, bool ok);
    void onValueChanged(Command command);

private:
    /// The values that a mode has of its own are others as soon as one of these is.
    struct Mode
    {
        int shown = 0;
        std::optional<int> confirmed; ///< what the monitor has
        unsigned timesSetAnew = 0;

        bool operator==(const Mode &) const = default;
    };

    /// Whether the way back from a risky change is offered.
    enum class WayBack { Offered, Taken };

    /// What a slider has put into the queue last.
    struct Posted
    {
        int value;
        unsigned change; ///< its number
    };

    static Mode modeNow();
    void followMode();
    void letGo();
    bool setOption(Command command, int value, WayBack way);
    void offerUndo(Command command, std::optional<int> before, int value);
    void fill(Command command);
    void apply(const std::map<Command, Rule> &rules, Command command, int value) const;

    CommandQueue &m_queue;
    BoundTexts m_texts;
    PageControls m_controls;
    PageLocks m_locks;
    PageValues m_values;
    PageResult m_result;
    bool m_updating = false;
    bool m_asksWhenShown = false;
    Mode m_shownMode;   ///< whose values are shown
    int m_lastMode = 0; ///< that was wished or told, also while it is on its way
    UndoBar *m_undoBar = nullptr;
    bool m_paced = false;
    std::map<Command, Rule> m_before;
    std::map<Command, Rule> m_after;
    std::map<Command, std::function<bool(int)>> m_vetoes;
    std::map<Command, Posted> m_posted; ///< by this page: what becomes of them is told here
};
