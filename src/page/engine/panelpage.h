#pragma once

#include <span>
#include <vector>

#include "page/engine/settingspage.h"
#include "page/engine/storenotice.h"

class LeftTabButton;
class OptionWords;
class PagePanel;
class PanelList;
class PictureStage;
class QStackedWidget;

/// A settings page of several panels, of which one is shown. The user chooses it in the page's own list, or, on pages
/// without one, in the window's left bar.
class PanelPage : public SettingsPage
{
    Q_OBJECT
public:
    enum class OwnList { Shown, None };

    /// The page's object name is what its style goes by; its panels come by one of the two functions below.
    PanelPage(const QString &name, OwnList list, CommandQueue &queue, QWidget *parent = nullptr);

    void updateControlText() override;
    QString optionText(Command command, int value) const override;

    /// Builds what is to be built when the page is first shown; further calls do nothing.
    void build();

    int panelCount() const;
    int currentPanel() const;

    /// Shows a panel, by its place among those that the monitor has, or by its source label.
    void showPanel(int index);
    void showPanel(const char *label);

    /// What the page's own list offers now; empty on pages without one.
    std::vector<LeftTabButton *> entries() const;

protected:
    /// To be called once by the page's constructor, when its own members stand, with the panels of all models, which
    /// outlive the page. Those that the monitor has are offered, also when another monitor comes.
    void buildPanels(std::span<const PanelSpec> panels);

    /// As buildPanels, when the page is first to be shown: until then it costs next to nothing.
    void buildPanelsWhenShown(std::span<const PanelSpec> panels);

    void showEvent(QShowEvent *event) override;

    /// A panel's drawn monitor has been made: a page may lay something of its own on it, or put it beside.
    virtual void stageBuilt(const PanelSpec &, PictureStage &) {}

    /// Words that a page lays beside a part of its own are renewed with the values that they tell of.
    void keepFresh(OptionWords *words) { m_words.push_back(words); }

    /// The keys that do from everywhere what a panel does, in rich text for beside its picture; empty for none.
    virtual QString keysOf(const PanelSpec &) { return {}; }

    /// Whether a panel stands in the list at all.
    virtual bool offers(const PanelSpec &panel) const;

    /// Shows the entries that are offered now. Who is on another panel comes to the first.
    void offerPanels();

    /// Whether a panel may be chosen now; a page that says no shows why.
    virtual bool mayShow(const PanelSpec &) { return true; }

    /// The warning of two functions that exclude each other; the label of the one that is on, as a source text.
    static QString alreadyEnabled(const char *label);

    /// Says under the title that a setting of the tool's own could not be stored, unless it was; returns whether.
    bool showStored(bool stored, Unstored otherwise);

    /// Draws the open panel's picture anew, for what it shows beside the monitor's values.
    void refreshPicture();

private:
    PanelList *buildList();
    void fillPanel(PagePanel &panel);
    void followCapability();
    const PanelSpec &panelAt(int place) const { return m_panels[static_cast<std::size_t>(place)]; }
    PagePanel *shownPanel() const;
    void addPicture(PagePanel &panel);
    void showKeys();
    void choose(int index);
    void showTitle();

    OwnList m_list;
    std::span<const PanelSpec> m_panels; ///< of all models; a place is one in these
    std::vector<PagePanel *> m_built;    ///< by place
    PanelList *m_entries = nullptr;      ///< on pages with a list of their own
    QStackedWidget *m_stack;
    PageHead *m_head = nullptr;
    bool m_drawsLater = false;          ///< the panels stand before their pictures
    std::vector<OptionWords *> m_words; ///< beside parts of the page's own
};
