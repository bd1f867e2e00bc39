#include "page/engine/panelpage.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/lefttabbutton.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "controls/sharedfonts.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/settingsstore.h"
#include "page/engine/labels.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"
#include "page/engine/picturestage.h"

namespace {

constexpr int kListWidth = 232;
constexpr int kEntryPitch = 48;
constexpr int kBottom = 16;

QPushButton *makeArrow(const QString &name, const QString &arrow, QWidget *parent)
{
    auto *button = new QPushButton(arrow, parent);
    button->setObjectName(name);
    button->setFixedHeight(24);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard walks the entries themselves
    return button;
}

} // namespace

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
    for (const PanelSpec &panel : panels) {
        if (!panel.needs || deviceState.has(*panel.needs))
            m_panels.push_back(panel);
    }
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

QWidget *PanelPage::buildList()
{
    auto *bar = new QFrame(this);
    bar->setObjectName(QStringLiteral("frameLeftBar"));
    bar->setFixedWidth(kListWidth);
    auto *entries = new QFrame(bar);
    entries->setObjectName(QStringLiteral("frameLeftBar2"));
    describeAs(entries, QAccessible::Grouping);
    texts().bind(LABEL("Settings"), [entries](const QString &text) { entries->setAccessibleName(text); });
    auto *stop = new FocusGroup(entries);
    auto *column = new QVBoxLayout(entries);
    column->setContentsMargins(12, 0, 12, 0);
    column->setSpacing(2);
    for (const PanelSpec &panel : m_panels)
        stop->add(addEntry(panel, column));
    column->addStretch(1);

    m_listArea = new QScrollArea(bar);
    m_listArea->setWidgetResizable(true);
    m_listArea->setFrameShape(QFrame::NoFrame);
    m_listArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listArea->setFocusPolicy(Qt::NoFocus);
    m_listArea->setWidget(entries);
    m_upper = makeArrow(QStringLiteral("pushButton_Upper"), QStringLiteral("▲"), bar);
    m_down = makeArrow(QStringLiteral("pushButton_Down"), QStringLiteral("▼"), bar);
    texts().bind(LABEL("Scroll up"), [this](const QString &text) { m_upper->setAccessibleName(text); });
    texts().bind(LABEL("Scroll down"), [this](const QString &text) { m_down->setAccessibleName(text); });
    connect(m_upper, &QPushButton::clicked, this, [this] { scrollList(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { scrollList(1); });
    // The arrows are there only when there is something to scroll to.
    connect(m_listArea->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int minimum, int maximum) {
        m_upper->setVisible(maximum > minimum);
        m_down->setVisible(maximum > minimum);
    });
    m_upper->hide();
    m_down->hide();

    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins(0, kBottom, 0, 0);
    layout->addWidget(m_upper);
    layout->addWidget(m_listArea, 1);
    layout->addWidget(m_down);
    return bar;
}

LeftTabButton *PanelPage::addEntry(const PanelSpec &panel, QLayout *column)
{
    const QString icon = Pictures::kRoot + QLatin1String("img/entry/") + QLatin1String(panel.icon);
    auto *entry = new LeftTabButton(icon, QString(), column->parentWidget());
    entry->setObjectName(QLatin1String(panel.label));
    texts().bind(panel.label, [entry](const QString &text) { entry->setCaption(text); });
    connect(entry, &LeftTabButton::clicked, this,
            [this, index = static_cast<int>(m_entries.size())] { choose(index); });
    m_entries.push_back(entry);
    column->addWidget(entry);
    return entry;
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
    shrinkTogether(m_entries);
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
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_entries[i]->setChecked(static_cast<int>(i) == index);
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

void PanelPage::scrollList(int steps)
{
    QScrollBar *bar = m_listArea->verticalScrollBar();
    bar->setValue(bar->value() + steps * kEntryPitch);
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
