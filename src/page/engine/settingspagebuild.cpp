// The part of the page engine that turns tables into controls.

#include <algorithm>

#include <QGridLayout>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/locksign.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/settingspage.h"

namespace {

constexpr int kColumnSpacing = 40;
constexpr int kRowSpacing = 16;
constexpr int kHeadingPixels = 15;
constexpr int kSignSpacing = 4;

QColor colorOf(Accent accent)
{
    switch (accent) {
    case Accent::Mint:
        break;
    case Accent::Red:
        return {0xff, 0x6b, 0x6b};
    case Accent::Yellow:
        return {0xff, 0xd1, 0x66};
    case Accent::Green:
        return {0x4b, 0xe0, 0x8a};
    case Accent::Cyan:
        return {0x4b, 0xd6, 0xe0};
    case Accent::Blue:
        return {0x5a, 0xa9, 0xff};
    case Accent::Magenta:
        return {0xd9, 0x8b, 0xff};
    }
    return {};
}

bool isAvailable(const std::optional<Capability> &needs)
{
    return !needs || deviceState.has(*needs);
}

} // namespace

/// Controls are made where they stay: a child that moves has every style sheet above it worked out again.
void SettingsPage::buildSections(std::span<const Section> sections, QVBoxLayout *column)
{
    for (const Section &section : sections) {
        if (const auto *group = std::get_if<OptionGroup>(&section))
            addOptions(*group, column);
        else if (const auto *grid = std::get_if<SliderGrid>(&section))
            addSliders(*grid, column);
        else if (QWidget *part = buildPart(std::get<CustomPart>(section).name))
            column->addWidget(part);
    }
}

void SettingsPage::addOptions(const OptionGroup &group, QVBoxLayout *column)
{
    if (!isAvailable(group.needs))
        return;
    if (!group.command)
        return addOwnOptions(group, column);
    auto *row = new OptionGroupRow(group, m_texts, column->parentWidget());
    connect(row, &OptionGroupRow::optionClicked, this, &SettingsPage::onOptionClicked);
    connect(row, &OptionGroupRow::lockPressed, this, [this, row] {
        for (const Option &option : row->group().options) {
            if (const LockRule *rule = lockOf(m_locks, *row->group().command, option.value, deviceState))
                return goTo(rule);
        }
    });
    m_groups.push_back(row);
    column->addWidget(row);
}

void SettingsPage::addOwnOptions(const OptionGroup &group, QVBoxLayout *column)
{
    auto *row = new OptionGroupRow(group, m_texts, column->parentWidget());
    connect(row, &OptionGroupRow::optionClicked, this, [this, row](QPushButton *button) {
        showResult(true); // what is said there was said of another choice
        for (const Option &option : row->group().options) {
            if (row->buttonOf(option.value) == button)
                onButtonClicked(row->group().label, option.value);
        }
        showOwnValues();
    });
    m_ownGroups.push_back(row);
    column->addWidget(row);
}

void SettingsPage::addSliders(const SliderGrid &grid, QVBoxLayout *column)
{
    if (grid.heading) {
        auto *heading = new CaptionLabel(QString(), kHeadingPixels, column->parentWidget());
        heading->setStyleSheet(QStringLiteral("color: #FFFFFF;"));
        m_texts.bind(grid.heading, [heading](const QString &text) { heading->setText(text); });
        column->addWidget(heading);
    }
    auto *cells = new QGridLayout;
    cells->setHorizontalSpacing(kColumnSpacing);
    cells->setVerticalSpacing(kRowSpacing);
    int cell = 0;
    for (const SliderSpec &spec : grid.sliders) {
        if (!isAvailable(spec.needs))
            continue;
        cells->addLayout(makeSlider(spec, grid, column->parentWidget()), cell / grid.columns, cell % grid.columns);
        ++cell;
    }
    for (int i = 0; i < grid.columns; ++i) {
        cells->addItem(new QSpacerItem(0, 0), cell / grid.columns + 1, i); // an empty column is as wide as the others
        cells->setColumnStretch(i, 1);
    }
    column->addLayout(cells);
}

/// A slider, and behind it the room for a lock in grids where one may come: the sliders must not jump then.
QLayout *SettingsPage::makeSlider(const SliderSpec &spec, const SliderGrid &grid, QWidget *parent)
{
    auto *slider = new SliderWidget(QLatin1String(spec.name), spec.minimum, spec.maximum, parent);
    slider->setCaptionWidth(grid.captionWidth);
    slider->setAccent(colorOf(spec.accent));
    m_texts.bind(spec.caption, [slider](const QString &text) { slider->setCaption(text); });
    connect(slider, &SliderWidget::sliderValueChanged, this, &SettingsPage::onSliderChanged);
    m_sliders.push_back(slider);

    auto *cell = new QHBoxLayout;
    cell->setSpacing(kSignSpacing);
    cell->addWidget(slider, 1);
    const auto mayBeLocked = [this](const SliderSpec &other) { return ruleFor(m_locks, QLatin1String(other.name)); };
    LockSign *sign = mayBeLocked(spec) ? makeSign(slider) : nullptr;
    if (sign)
        cell->addWidget(sign);
    else if (std::any_of(grid.sliders.begin(), grid.sliders.end(), mayBeLocked))
        cell->addSpacing(LockSign::kSize + kSignSpacing);
    m_sliderEntries.push_back({spec, slider, sign, {}});
    return cell;
}
