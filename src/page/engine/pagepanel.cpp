#include "page/engine/pagepanel.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <variant>

#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/pagetable.h"
#include "page/engine/picturestage.h"

PagePanel::PagePanel(const PanelSpec &spec, QWidget *parent)
    : QWidget(parent), m_spec(spec), m_column(new QVBoxLayout(this))
{
    setObjectName(QLatin1String(spec.widgetName));
    describeAs(this, QAccessible::Pane);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(metrics::kRowGap);
}

void PagePanel::finish(std::span<OptionGroupRow *const> rows, std::span<SliderWidget *const> sliders)
{
    m_isFinished = true;
    m_sliders.assign(sliders.begin(), sliders.end());
    const char *title = m_spec.label;
    const bool repeatTitle =
        std::ranges::all_of(rows,
                            [title](const OptionGroupRow *row) { return qstrcmp(row->group().label, title) == 0; }) &&
        std::ranges::all_of(sliders,
                            [title](const SliderWidget *slider) { return slider->name() == QLatin1String(title); });
    if (repeatTitle) { // else the controls would not line up
        std::ranges::for_each(rows, &OptionGroupRow::hideCaption);
        std::ranges::for_each(sliders, &SliderWidget::hideCaption);
    }
    m_column->addStretch(1);
}

/// In place of the stretch below the controls.
PictureStage *PagePanel::addPicture()
{
    if (!m_spec.picture || m_stage)
        return nullptr;
    delete m_column->takeAt(m_column->count() - 1);
    const QList<OptionGroupRow *> rows = findChildren<OptionGroupRow *>();
    m_stage = new PictureStage(*m_spec.picture, {rows.begin(), rows.end()}, m_spec.label, this);
    m_column->addWidget(m_stage, 1);
    followSliders();
    return m_stage;
}

/// Those that are sent when they are let go are seen at work while they are held.
void PagePanel::followSliders()
{
    for (const Section &section : m_spec.sections) {
        const auto *grid = std::get_if<SliderGrid>(&section);
        for (const SliderSpec &spec : grid ? grid->sliders : std::span<const SliderSpec>()) {
            const auto slider = std::ranges::find(m_sliders, QLatin1String(spec.name), &SliderWidget::name);
            if (slider == m_sliders.end())
                continue;
            connect(*slider, &SliderWidget::sliderValueChanged, m_stage,
                    [stage = m_stage, command = spec.command](const QString &, int value, bool released) {
                        stage->tryOut(released ? std::nullopt : std::optional(std::pair(command, value)));
                    });
            connect(*slider, &SliderWidget::holdLost, m_stage, [stage = m_stage] { stage->tryOut(std::nullopt); });
        }
    }
}
