#include "page/Nightloom/parts/ownslider.h"

#include <utility>

#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "page/engine/boundtexts.h"
#include "usb-hid/accessorysettings.h"

SliderWidget *makeOwnSlider(const char *label, BoundTexts &texts, QWidget *parent, std::function<void()> moved)
{
    auto *slider = new SliderWidget(QLatin1String(label), 0, kHighestAccessoryValue, parent);
    slider->setCaptionWidth(metrics::kCaptionWidth);
    slider->setFixedHeight(metrics::kControlHeight);
    texts.bind(label, [slider](const QString &text) { slider->setCaption(text); });
    QObject::connect(slider, &SliderWidget::sliderValueChanged, slider, [moved](const QString &, int, bool released) {
        if (released)
            moved();
    });
    QObject::connect(slider, &SliderWidget::holdLost, slider,
                     std::move(moved)); // what it shows is all there is to know
    return slider;
}
