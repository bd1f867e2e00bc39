#pragma once

class BoundTexts;
class QWidget;
class SliderWidget;
struct SliderGrid;
struct SliderSpec;

/// Makes a slider as its table and the grid that it stands in describe it. Its texts are bound to @p texts.
SliderWidget *makeSlider(const SliderSpec &spec, const SliderGrid &grid, BoundTexts &texts, QWidget *parent);
