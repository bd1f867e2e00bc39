#pragma once

#include <functional>

class BoundTexts;
class QWidget;
class SliderWidget;

/// A slider of the accessory's own, 0 to kHighestAccessoryValue, in line with a panel's options. Its label is a source
/// text; @p moved is told when the user lets go of it.
SliderWidget *makeOwnSlider(const char *label, BoundTexts &texts, QWidget *parent, std::function<void()> moved);
