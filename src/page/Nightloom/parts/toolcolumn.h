#pragma once

class BoundTexts;
class FramePlayer;
class QLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;
class SliderWidget;

// The parts of the column of tools that the accessory's drawing pages have at their side.

inline constexpr int kToolCaptionWidth = 88;

/// The column that a widget of tools is filled from above.
QVBoxLayout *makeToolColumn(QWidget *tools);

/// A button with the column's look, named after its label.
QPushButton *makeToolButton(const char *label, BoundTexts &texts, QWidget *parent);

/// A captioned slider; its label and its unit, such as "%1 s", are source texts.
struct ToolSlider
{
    const char *label;
    int minimum;
    int maximum;
    const char *unit;
};
SliderWidget *makeToolSlider(const ToolSlider &made, int value, BoundTexts &texts, QWidget *parent);

/// The slider that sets how fast a player plays.
SliderWidget *makeSpeedSlider(FramePlayer &player, BoundTexts &texts, QWidget *parent);

/// A thin line between two groups of tools.
QWidget *makeToolLine(QWidget *parent);
