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
#include "ddc_protocol/settingsstore.h"
#include "page/engine/optiongrouprow.h"
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
    connect(&queue.values(), &ValueWatch::changed, this, &PanelPage::refreshPicture);
}

void PanelPage::takePanels(std::span<const PanelSpec> panels)
{
    std::ranges::copy_if(panels, std::back_inserter(m_panels),
                         [](const PanelSpec &panel) { return deviceState.has(panel.needs); });
}

void PanelPage::buildPanels(std::span<const PanelSpec> panels)
{
    takePanels(panels);
    m_drawsLater = true; // what a page needs at the start it has: the pictures come when they are looked at
    build();
}

void PanelPage::buildPanelsWhenShown(std::span<const PanelSpec> panels)
{
    takePanels(panels);
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
    for (const PanelSpec &panel : m_panels)
        m_stack->addWidget(buildPanel(panel));
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

const std::vector<LeftTabButton *> &PanelPage::entries() const
{
    static const std::vector<LeftTabButton *> kNone;
    return m_entries ? m_entries->entries() : kNone;
}

QWidget *PanelPage::buildPanel(const PanelSpec &panel)
{
    auto *content = new QWidget(m_stack);
    content->setObjectName(QLatin1String(panel.widgetName));
    describeAs(content, QAccessible::Pane);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    fillPanel(panel, column);
    return content;
}

void PanelPage::fillPanel(const PanelSpec &panel, QVBoxLayout *column)
{
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
        addPicture(m_stack->count(), panel, column);
}

/// In place of the stretch below the controls.
void PanelPage::addPicture(int index, const PanelSpec &panel, QVBoxLayout *column)
{
    delete column->takeAt(column->count() - 1);
    const QList<OptionGroupRow *> rows = column->parentWidget()->findChildren<OptionGroupRow *>();
    auto *stage = new PictureStage(*panel.picture, {rows.begin(), rows.end()}, column->parentWidget());
    m_pictures[index] = stage;
    pictureBuilt(stage->picture());
    column->addWidget(stage, 1);
}

void PanelPage::refreshPicture()
{
    if (!isVisible())
        return;
    const PanelSpec &panel = m_panels[static_cast<std::size_t>(currentPanel())];
    if (panel.picture && !m_pictures.contains(currentPanel()))
        addPicture(currentPanel(), panel, static_cast<QVBoxLayout *>(m_stack->currentWidget()->layout()));
    if (const auto stage = m_pictures.find(currentPanel()); stage != m_pictures.end())
        stage->second->refresh();
}

/// Keys may have been given anew on another page meanwhile.
void PanelPage::showKeys()
{
    if (const auto stage = m_pictures.find(currentPanel()); isVisible() && stage != m_pictures.end())
        stage->second->setKeys(keysOf(m_panels[static_cast<std::size_t>(currentPanel())]));
}

void PanelPage::updateControlText()
{
    SettingsPage::updateControlText();
    shrinkTogether(entries());
    showTitle();
    for (const auto &[panel, stage] : m_pictures)
        stage->refresh();
    showKeys();
}

void PanelPage::showTitle()
{
    if (m_panels.empty() || !m_head)
        return;
    const PanelSpec &panel = m_panels[static_cast<std::size_t>(currentPanel())];
    const QString title = QObject::tr(panel.label);
    m_head->setTitle(title);
    setAccessibleName(title);
    m_stack->currentWidget()->setAccessibleName(title);
    m_head->setHelp(panel.help ? QObject::tr(panel.help) : QString());
}

int PanelPage::panelCount() const
{
    return m_stack->count();
}

int PanelPage::currentPanel() const
{
    return m_stack->currentIndex();
}

void PanelPage::choose(int index)
{
    if (!mayShow(m_panels[static_cast<std::size_t>(index)]))
        index = currentPanel();
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
    if (index >= 0 && index < panelCount())
        choose(index);
}

void PanelPage::showPanel(const char *label)
{
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (qstrcmp(m_panels[i].label, label) == 0)
            showPanel(static_cast<int>(i));
    }
}

/// From the tables: what is not built yet has its names as well.
QString PanelPage::optionText(Command command, int value) const
{
    for (const PanelSpec &panel : m_panels) {
        for (const Section &section : panel.sections) {
            const auto *group = std::get_if<OptionGroup>(&section);
            if (!group || group->command != command || group->look == GroupLook::Switch)
                continue; // that a switch is on has words of its own
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
