#pragma once

#include "page/engine/pagetable.h"

// Rows of a page's table that take from the table of commands what a command is called, and which monitors have it. A
// row that has to say otherwise is written out. Help is a sentence that says what the setting is for, a caption what
// stands before it where its name says more than is needed there; both are source texts and may be null.

/// Options that are chosen by their buttons.
OptionGroup groupOf(Command command, std::span<const Option> options, const char *help = nullptr,
                    const char *caption = nullptr);

/// Options that are chosen from drawings, or from colour swatches.
OptionGroup picturesOf(Command command, std::span<const Option> options, DrawOption draw, const char *caption);
OptionGroup swatchesOf(Command command, std::span<const Option> options, const char *caption = nullptr,
                       const char *help = nullptr);

/// The two halves of a switch.
OptionGroup switchOf(Command command, std::span<const Option> halves = kSwitchOptions, const char *help = nullptr);

/// A switch of the page's own, which goes to no monitor.
OptionGroup ownSwitch(const char *label, std::span<const Option> halves, const char *help = nullptr);

/// A slider from the minimum to the maximum.
SliderSpec sliderOf(Command command, int minimum, int maximum, SendOn sendOn = SendOn::Move, const char *help = nullptr,
                    const char *caption = nullptr);

/// The panel of one setting, called as that is, for the monitors that have it.
PanelSpec panelOf(Command command, const char *icon, const char *widgetName, std::span<const Section> sections,
                  const char *help = nullptr, const PanelPicture *picture = nullptr);
