#include "page/engine/tableslider.h"

#include <algorithm>
#include <iterator>

#include <QColor>
#include <QObject>

#include "controls/labelled.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/pagetable.h"

namespace {

/// What is seen of an accent, and what is said of it where the caption is a single letter.
struct AccentLook
{
    Accent accent;
    QRgb colour;
    const char *name;
};
constexpr AccentLook kAccents[] = {
    {Accent::Red, 0xffff6b6b, LABEL("Red")},     {Accent::Yellow, 0xffffd166, LABEL("Yellow")},
    {Accent::Green, 0xff4be08a, LABEL("Green")}, {Accent::Cyan, 0xff4bd6e0, LABEL("Cyan")},
    {Accent::Blue, 0xff5aa9ff, LABEL("Blue")},   {Accent::Magenta, 0xffd98bff, LABEL("Magenta")},
};

/// Null for the look's own accent.
const AccentLook *lookOf(Accent accent)
{
    const auto *found = std::find_if(std::begin(kAccents), std::end(kAccents),
                                     [accent](const AccentLook &look) { return look.accent == accent; });
    return found == std::end(kAccents) ? nullptr : found;
}

/// Sliders under a heading are told apart by it: "Hue: Red".
QString spokenName(const SliderGrid &grid, const AccentLook *look, const QString &caption)
{
    if (!grid.heading)
        return caption;
    return labelled(QObject::tr(grid.heading), look ? QObject::tr(look->name) : caption);
}

} // namespace

SliderWidget *makeSlider(const SliderSpec &spec, const SliderGrid &grid, BoundTexts &texts, QWidget *parent)
{
    auto *slider = new SliderWidget(QLatin1String(spec.name), spec.minimum, spec.maximum, parent);
    slider->setCaptionWidth(grid.captionWidth);
    slider->setFixedHeight(metrics::kControlHeight);
    const AccentLook *look = lookOf(spec.accent);
    slider->setAccent(look ? QColor(look->colour) : QColor());
    if (grid.showsAccents)
        slider->showAccent();
    if (spec.unit)
        texts.bind(spec.unit, [slider](const QString &pattern) { slider->slider()->setUnit(pattern); });
    if (spec.help)
        texts.bind(spec.help, [slider](const QString &text) { slider->setHelp(text); });
    texts.bind(spec.caption,
               [slider, grid, look](const QString &text) { slider->setCaption(text, spokenName(grid, look, text)); });
    return slider;
}
