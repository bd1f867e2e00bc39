#include "page/engine/panelpage.h"

#include <algorithm>
#include <iterator>

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
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
#include "page/engine/pagestyle.h"
#include "page/engine/panellist.h"
#include "page/engine/picturestage.h"

static constexpr int kBottom = 16;

PanelPage::PanelPage(const QString &name, OwnList list, CommandQueue &queue, QWidget *parent)
    : SettingsPage(queue, parent), m_list(list), m_stack(new QStackedWidget(this))
{
    setObjectName(name);
    dressPage(this);
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
    row->setContentsMargins(m_list == OwnList::Shown ? 0 : metrics::kBlockGap, 0, metrics::kBlockGap, kBottom);
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
        QWidget *content = makePanel(panel);
        fillPanel(m_stack->count(), content); // before it is shown: what it asks for goes by what is in sight
        m_stack->addWidget(content);
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

QWidget *PanelPage::makePanel(const PanelSpec &panel)
{
    auto *content = new QWidget(m_stack);
    content->setObjectName(QLatin1String(panel.widgetName));
    describeAs(content, QAccessible::Pane);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    return content;
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
        fillPanel(place, m_stack->widget(place));
    }
    const PanelSpec &open = panelAt(m_stack->currentIndex());
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

/// Once, and only for a monitor that has it.
void PanelPage::fillPanel(int place, QWidget *content)
{
    const PanelSpec &panel = panelAt(place);
    if (!offers(panel) || !m_filled.insert(place).second)
        return;
    auto *column = static_cast<QVBoxLayout *>(content->layout());
    const std::size_t groupsBefore = optionGroups().size();
    const std::size_t slidersBefore = sliders().size();
    buildSections(panel.sections, column);
    const std::span rows = std::span(optionGroups()).subspan(groupsBefore);
    const std::span ownSliders = std::span(sliders()).subspan(slidersBefore);
    const bool repeatTitle =
        std::ranges::all_of(
            rows, [&panel](const OptionGroupRow *row) { return qstrcmp(row->group().label, panel.label) == 0; }) &&
        std::ranges::all_of(
            ownSliders, [&panel](const SliderWidget *slider) { return slider->name() == QLatin1String(panel.label); });
    if (repeatTitle) { // else the controls would not line up
        std::ranges::for_each(rows, &OptionGroupRow::hideCaption);
        std::ranges::for_each(ownSliders, &SliderWidget::hideCaption);
    }
    column->addStretch(1);
    if (panel.picture && !m_drawsLater)
        addPicture(place, panel, column);
}

/// In place of the stretch below the controls.
void PanelPage::addPicture(int index, const PanelSpec &panel, QVBoxLayout *column)
{
    delete column->takeAt(column->count() - 1);
    const QList<OptionGroupRow *> rows = column->parentWidget()->findChildren<OptionGroupRow *>();
    auto *stage = new PictureStage(*panel.picture, {rows.begin(), rows.end()}, panel.label, column->parentWidget());
    m_pictures[index] = stage;
    stageBuilt(panel, *stage);
    column->addWidget(stage, 1);
    followSliders(panel, stage);
}

/// Those that are sent when they are let go are seen at work while they are held.
void PanelPage::followSliders(const PanelSpec &panel, PictureStage *stage)
{
    for (const Section &section : panel.sections) {
        const auto *grid = std::get_if<SliderGrid>(&section);
        for (const SliderSpec &spec : grid ? grid->sliders : std::span<const SliderSpec>()) {
            if (const SliderWidget *widget = slider(spec.name))
                connect(widget, &SliderWidget::sliderValueChanged, stage,
                        [stage, command = spec.command](const QString &, int value, bool released) {
                            stage->tryOut(released ? std::nullopt : std::optional(std::pair(command, value)));
                        });
        }
    }
}

void PanelPage::refreshPicture()
{
    if (!isVisible())
        return;
    const int place = m_stack->currentIndex();
    const PanelSpec &panel = panelAt(place);
    if (panel.picture && m_filled.contains(place) && !m_pictures.contains(place))
        addPicture(place, panel, static_cast<QVBoxLayout *>(m_stack->currentWidget()->layout()));
    if (const auto stage = m_pictures.find(place); stage != m_pictures.end())
        stage->second->refresh();
    for (OptionWords *words : m_words) {
        if (words->isVisible())
            words->refresh();
    }
}

/// Keys may have been given anew on another page meanwhile.
void PanelPage::showKeys()
{
    if (const auto stage = m_pictures.find(m_stack->currentIndex()); isVisible() && stage != m_pictures.end())
        stage->second->words()->setKeys(keysOf(panelAt(stage->first)));
}

void PanelPage::updateControlText()
{
    SettingsPage::updateControlText();
    shrinkTogether(entries());
    showTitle();
    for (const auto &[panel, stage] : m_pictures)
        stage->refresh();
    for (OptionWords *words : m_words)
        words->refresh();
    showKeys();
}

void PanelPage::showTitle()
{
    if (m_panels.empty() || !m_head)
        return;
    const PanelSpec &panel = panelAt(m_stack->currentIndex());
    const QString title = QObject::tr(panel.label);
    m_head->setTitle(title);
    setAccessibleName(title);
    m_stack->currentWidget()->setAccessibleName(title);
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
            const auto option = std::ranges::find(group->options, value, &Option::value);
            if (option != group->options.end())
                return QObject::tr(option->label).trimmed();
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
