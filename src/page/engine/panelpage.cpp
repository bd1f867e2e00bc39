#include "page/engine/panelpage.h"

#include <algorithm>
#include <iterator>

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/captions.h"
#include "controls/lefttabbutton.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/settingsstore.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagepanel.h"
#include "page/engine/pagestyle.h"
#include "page/engine/panellist.h"
#include "page/engine/picturestage.h"

PanelPage::PanelPage(const QString &name, OwnList list, CommandQueue &queue, QWidget *parent)
    : SettingsPage(queue, parent), m_list(list), m_stack(new QStackedWidget(this))
{
    setObjectName(name);
    layGround(this);
    m_stack->setObjectName(QStringLiteral("rightStackedWidget"));
    askWhenShown();
    connect(&queue.values(), &ValueWatch::changed, this, [this](Command command) {
        if (command == Command::Capability)
            followCapability();
        refreshPicture();
    });
}

void PanelPage::buildPanels(std::span<const PanelSpec> panels)
{
    m_panels = panels;
    m_drawsLater = true; // what a page needs at the start it has: the pictures come when they are looked at
    build();
}

void PanelPage::buildPanelsWhenShown(std::span<const PanelSpec> panels)
{
    m_panels = panels;
}

void PanelPage::build()
{
    if (m_head)
        return;
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(m_list == OwnList::Shown ? 0 : metrics::kBlockGap, 0, metrics::kBlockGap,
                            metrics::kPageBottom);
    row->setSpacing(metrics::kBlockGap);
    if (m_list == OwnList::Shown)
        row->addWidget(buildList());
    auto *column = new QVBoxLayout;
    column->setSpacing(metrics::kGap);
    m_head = addHead(column);
    column->addWidget(m_stack, 1);
    addUndoBar(column);
    row->addLayout(column, 1);
    for (const PanelSpec &panel : m_panels) {
        m_built.push_back(new PagePanel(panel, m_stack));
        fillPanel(*m_built.back()); // before it is shown: what it asks for goes by what is in sight
        m_stack->addWidget(m_built.back());
    }
    offerPanels();
    showPanel(0);
    updateInterfaceData();
}

void PanelPage::showEvent(QShowEvent *event)
{
    build();
    SettingsPage::showEvent(event);
    refreshPicture();
    showKeys();
}

PanelList *PanelPage::buildList()
{
    m_entries = new PanelList(texts(), this);
    for (const PanelSpec &panel : m_panels)
        m_entries->add(panel);
    connect(m_entries, &PanelList::chosen, this, &PanelPage::choose);
    return m_entries;
}

std::vector<LeftTabButton *> PanelPage::entries() const
{
    std::vector<LeftTabButton *> shown;
    if (m_entries)
        std::ranges::copy_if(m_entries->entries(), std::back_inserter(shown),
                             [](const LeftTabButton *entry) { return !entry->isHidden(); });
    return shown;
}

bool PanelPage::offers(const PanelSpec &panel) const
{
    return isOffered(panel, deviceState);
}

/// The monitor may tell only now what it has, or be another one: what was never offered before is built then.
void PanelPage::offerPanels()
{
    for (int place = 0; place < m_stack->count(); ++place) {
        const bool isThere = offers(panelAt(place));
        if (m_entries)
            m_entries->offer(place, isThere);
        fillPanel(*m_built[static_cast<std::size_t>(place)]);
    }
    shrinkTogether(entries());
    const PanelSpec &open = shownPanel()->spec();
    if (offers(open) || panelCount() == 0)
        return;
    showPanel(0);
    if (isVisible())
        showNotice(QObject::tr("%1 does not have \"%2\".").arg(monitorName(), QObject::tr(open.label)));
}

void PanelPage::followCapability()
{
    if (!m_head || !deviceState.isKnown(Command::Capability)) // a monitor that is asked keeps its page as it is
        return;
    offerPanels();
    updateInterfaceData();
    QMetaObject::invokeMethod(this, &PanelPage::reconcile, Qt::QueuedConnection); // what is new is in sight by then
}

/// Null until the first one stands.
PagePanel *PanelPage::shownPanel() const
{
    const int place = m_stack->currentIndex();
    return place < 0 ? nullptr : m_built[static_cast<std::size_t>(place)];
}

/// Once, and only for a monitor that has it.
void PanelPage::fillPanel(PagePanel &panel)
{
    if (!offers(panel.spec()) || panel.isFinished())
        return;
    const std::size_t groupsBefore = optionGroups().size();
    const std::size_t slidersBefore = sliders().size();
    buildSections(panel.spec().sections, panel.column());
    panel.finish(std::span(optionGroups()).subspan(groupsBefore), std::span(sliders()).subspan(slidersBefore));
    if (!m_drawsLater)
        addPicture(panel);
}

void PanelPage::addPicture(PagePanel &panel)
{
    if (PictureStage *stage = panel.addPicture())
        stageBuilt(panel.spec(), *stage);
}

void PanelPage::refreshPicture()
{
    if (!isVisible())
        return;
    PagePanel *panel = shownPanel();
    if (panel && panel->isFinished())
        addPicture(*panel);
    if (panel && panel->stage())
        panel->stage()->refresh();
    for (OptionWords *words : m_words) {
        if (words->isVisible())
            words->refresh();
    }
}

/// Keys may have been given anew on another page meanwhile.
void PanelPage::showKeys()
{
    const PagePanel *panel = shownPanel();
    if (isVisible() && panel && panel->stage())
        panel->stage()->words()->setKeys(keysOf(panel->spec()));
}

void PanelPage::updateControlText()
{
    SettingsPage::updateControlText();
    shrinkTogether(entries());
    showTitle();
    for (const PagePanel *panel : m_built) {
        if (panel->stage())
            panel->stage()->refresh();
    }
    for (OptionWords *words : m_words)
        words->refresh();
    showKeys();
}

void PanelPage::showTitle()
{
    if (m_panels.empty() || !m_head)
        return;
    const PanelSpec &panel = shownPanel()->spec();
    const QString title = QObject::tr(panel.label);
    m_head->setTitle(title);
    shownPanel()->setAccessibleName(title);
    m_head->setHelp(panel.help ? QObject::tr(panel.help) : QString());
}

int PanelPage::panelCount() const
{
    return static_cast<int>(std::ranges::count_if(m_panels, [this](const PanelSpec &panel) { return offers(panel); }));
}

int PanelPage::currentPanel() const
{
    const auto before = m_panels.first(static_cast<std::size_t>(std::max(m_stack->currentIndex(), 0)));
    return static_cast<int>(std::ranges::count_if(before, [this](const PanelSpec &panel) { return offers(panel); }));
}

void PanelPage::choose(int index)
{
    if (!mayShow(panelAt(index)))
        index = m_stack->currentIndex();
    else
        showNotice({});
    m_stack->setCurrentIndex(index);
    showTitle();
    if (m_entries)
        m_entries->mark(index);
    reconcile();
    refreshPicture();
    showKeys();
}

void PanelPage::showPanel(int index)
{
    build();
    for (int place = 0; place < m_stack->count(); ++place) {
        if (offers(panelAt(place)) && index-- == 0)
            return choose(place);
    }
}

void PanelPage::showPanel(const char *label)
{
    build();
    for (int place = 0; place < m_stack->count(); ++place) {
        if (offers(panelAt(place)) && qstrcmp(panelAt(place).label, label) == 0)
            choose(place);
    }
}

/// From the tables: what is not built yet has its names as well.
QString PanelPage::optionText(Command command, int value) const
{
    for (const PanelSpec &panel : m_panels) {
        if (!offers(panel))
            continue;
        for (const Section &section : panel.sections) {
            const auto *group = std::get_if<OptionGroup>(&section);
            if (!group || group->command != command || *group->options.front().label == ' ')
                continue; // "Enable" and "Disable", with their blanks: that a function is on has words of its own
            if (const Option *option = optionOf(*group, value))
                return optionName(*option);
        }
    }
    return {};
}

QString PanelPage::alreadyEnabled(const char *label)
{
    const QString ending = QObject::tr(" already enabled!");
    return QObject::tr(label) + ending;
}

bool PanelPage::showStored(bool stored, Unstored otherwise)
{
    if (!stored)
        showNotice(storeNotice(otherwise, QLatin1String(kConfigFile)));
    return stored;
}
