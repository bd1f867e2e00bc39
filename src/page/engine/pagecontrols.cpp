#include "page/engine/pagecontrols.h"

#include <algorithm>
#include <utility>

#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/captions.h"
#include "controls/dress.h"
#include "controls/labelled.h"
#include "controls/locksign.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/boundtexts.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/tableslider.h"

namespace {

constexpr int kColumnSpacing = 40;
constexpr int kHeadingPixels = 15;
constexpr int kSignSpacing = 4;

void shrinkRowCaptions(const QWidget &panel)
{
    QList<CaptionLabel *> captions = panel.findChildren<CaptionLabel *>();
    captions.removeIf([](const CaptionLabel *caption) { return !caption->isForRow() || caption->isHidden(); });
    shrinkTogether(captions);
}

} // namespace

PageControls::PageControls(BoundTexts &texts) : m_texts(texts)
{
}

/// Controls are made where they stay: a child that moves has every style sheet above it worked out again.
void PageControls::build(std::span<const Section> sections, std::span<const LockRule> locks, QVBoxLayout *column,
                         const BuildPart &buildPart)
{
    for (const Section &section : sections) {
        if (const auto *group = std::get_if<OptionGroup>(&section))
            addOptions(*group, column);
        else if (const auto *grid = std::get_if<SliderGrid>(&section))
            addSliders(*grid, locks, column);
        else if (QWidget *part = buildPart(std::get<CustomPart>(section).name))
            column->addWidget(part);
    }
    m_panels.push_back(column->parentWidget());
    shrinkRowCaptions(*m_panels.back());
}

void PageControls::shrinkCaptions() const
{
    for (const QWidget *panel : m_panels)
        shrinkRowCaptions(*panel);
}

void PageControls::addOptions(const OptionGroup &group, QVBoxLayout *column)
{
    if (!group.command)
        return addOwnOptions(group, column);
    auto *row = new OptionGroupRow(group, m_texts, column->parentWidget());
    connect(row, &OptionGroupRow::optionClicked, this, &PageControls::optionClicked);
    connect(row, &OptionGroupRow::lockPressed, this, [this, row] { Q_EMIT groupLockPressed(row); });
    m_groups.push_back(row);
    if (!deviceState.has(group.needs))
        row->hide();
    column->addWidget(row);
}

/// A slider of another monitor's leaves its place empty.
void PageControls::followCapability()
{
    for (OptionGroupRow *row : m_groups) {
        if (row->group().needs)
            row->setVisible(deviceState.has(row->group().needs));
    }
    for (const Slider &entry : m_sliderEntries) {
        if (entry.spec.needs)
            entry.widget->setVisible(deviceState.has(entry.spec.needs));
    }
}

void PageControls::addOwnOptions(const OptionGroup &group, QVBoxLayout *column)
{
    auto *row = new OptionGroupRow(group, m_texts, column->parentWidget());
    connect(row, &OptionGroupRow::optionClicked, this, [this, row](QPushButton *button) {
        for (const Option &option : row->group().options) {
            if (row->buttonOf(option.value) == button)
                Q_EMIT ownOptionClicked(row->group().label, option.value);
        }
    });
    m_ownGroups.push_back(row);
    column->addWidget(row);
}

void PageControls::addSliders(const SliderGrid &grid, std::span<const LockRule> locks, QVBoxLayout *column)
{
    if (grid.heading) {
        auto *heading = new CaptionLabel(QString(), kHeadingPixels, column->parentWidget());
        dressText(heading, {Palette::kText});
        m_texts.bind(grid.heading, [heading](const QString &text) { heading->setText(text); });
        column->addWidget(heading);
    }
    auto *cells = new QGridLayout;
    cells->setHorizontalSpacing(kColumnSpacing);
    cells->setVerticalSpacing(metrics::kRowGap);
    int cell = 0;
    for (const SliderSpec &spec : grid.sliders) {
        cells->addLayout(makeSliderCell(spec, grid, locks, column->parentWidget()), cell / grid.columns,
                         cell % grid.columns);
        ++cell;
    }
    for (int i = 0; i < grid.columns; ++i) {
        if (i >= cell) // an empty column is as wide as the others, and as far from them
            cells->addWidget(new QWidget(column->parentWidget()), 0, i);
        cells->setColumnStretch(i, 1);
    }
    column->addLayout(cells);
}

/// A slider, and behind it the room for a lock in grids where one may come: the sliders must not jump then.
QLayout *PageControls::makeSliderCell(const SliderSpec &spec, const SliderGrid &grid, std::span<const LockRule> locks,
                                      QWidget *parent)
{
    SliderWidget *slider = makeSlider(spec, grid, m_texts, parent);
    connect(slider, &SliderWidget::sliderValueChanged, this, &PageControls::sliderChanged);
    connect(slider, &SliderWidget::holdLost, this, &PageControls::sliderHoldLost);
    m_sliders.push_back(slider);
    if (!deviceState.has(spec.needs))
        slider->hide();

    auto *cell = new QHBoxLayout;
    cell->setSpacing(kSignSpacing);
    cell->addWidget(slider, 1);
    const auto mayBeLocked = [locks](const SliderSpec &other) { return ruleFor(locks, QLatin1String(other.name)); };
    LockSign *sign = mayBeLocked(spec) ? makeSign(slider) : nullptr;
    if (sign)
        cell->addWidget(sign);
    else if (std::any_of(grid.sliders.begin(), grid.sliders.end(), mayBeLocked))
        cell->addSpacing(LockSign::kSize + kSignSpacing);
    m_sliderEntries.push_back({spec, slider, sign, {}});
    return cell;
}

LockSign *PageControls::makeSign(SliderWidget *slider)
{
    auto *sign = new LockSign(slider->parentWidget());
    QSizePolicy policy = sign->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    sign->setSizePolicy(policy);
    connect(sign, &LockSign::pressed, this, [this, slider] { Q_EMIT sliderLockPressed(slider); });
    return sign;
}

OptionGroupRow *PageControls::group(Command command) const
{
    const auto group = std::find_if(m_groups.begin(), m_groups.end(),
                                    [command](const OptionGroupRow *row) { return row->group().command == command; });
    return group == m_groups.end() ? nullptr : *group;
}

OptionGroupRow *PageControls::ownGroup(const char *label) const
{
    const auto group = std::find_if(m_ownGroups.begin(), m_ownGroups.end(), [label](const OptionGroupRow *row) {
        return qstrcmp(row->group().label, label) == 0;
    });
    return group == m_ownGroups.end() ? nullptr : *group;
}

SliderWidget *PageControls::slider(const char *name) const
{
    const Slider *entry = sliderEntry(QLatin1String(name));
    return entry ? entry->widget : nullptr;
}

SliderWidget *PageControls::slider(Command command) const
{
    const auto entry = std::find_if(m_sliderEntries.begin(), m_sliderEntries.end(),
                                    [command](const Slider &slider) { return slider.command() == command; });
    return entry == m_sliderEntries.end() ? nullptr : entry->widget;
}

const PageControls::Slider *PageControls::sliderEntry(const QString &name) const
{
    const auto entry = std::find_if(m_sliderEntries.begin(), m_sliderEntries.end(),
                                    [&name](const Slider &slider) { return slider.widget->name() == name; });
    return entry == m_sliderEntries.end() ? nullptr : &*entry;
}

std::vector<Command> PageControls::commandsInSight(const QWidget *page) const
{
    std::vector<Command> commands;
    const auto add = [page, &commands](const QWidget *control, std::optional<Command> command) {
        if (command && control->isVisibleTo(page))
            commands.push_back(*command);
    };
    for (const OptionGroupRow *row : m_groups)
        add(row, row->group().command);
    for (const Slider &entry : m_sliderEntries)
        add(entry.widget, entry.command());
    return commands;
}

void PageControls::chooseCommand(const char *sliderName, std::function<std::optional<Command>()> choose)
{
    for (Slider &entry : m_sliderEntries) {
        if (entry.widget->name() == QLatin1String(sliderName))
            entry.choose = std::move(choose);
    }
}

QString PageControls::wordsFor(Command command, int value) const
{
    if (const OptionGroupRow *row = group(command)) {
        const QString name = QObject::tr(row->group().label);
        const Option *chosen = optionOf(row->group(), value);
        if (!chosen)
            return name;
        const QString option = optionName(*chosen); // a button may show a picture instead
        return row->hasCaption() ? labelled(name, option) : option;
    }
    for (const Slider &entry : m_sliderEntries) {
        if (entry.command() == command)
            return labelled(entry.widget->caption(), QString::number(value));
    }
    return {};
}

std::optional<PageControls::Choice> PageControls::choiceOf(const QString &objectName) const
{
    std::optional<Choice> fallback;
    for (const OptionGroupRow *row : m_groups) {
        const OptionGroup &group = row->group();
        const QString prefix = QString::fromUtf8(group.label) + QLatin1Char('_');
        if (!objectName.startsWith(prefix))
            continue;
        for (const Option &option : group.options) {
            if (objectName == prefix + QString::fromUtf8(option.label))
                return Choice{*group.command, option.value};
        }
        if (!fallback)
            fallback = Choice{*group.command, deviceState.value(*group.command)};
    }
    return fallback;
}
