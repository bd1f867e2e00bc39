#pragma once

#include <optional>
#include <span>
#include <variant>

#include <QString>

#include "ddc_protocol/command.h"

class QPainter;
class QRectF;
struct PanelPicture;

// A settings page is a table of these. Labels are source texts, marked by QT_TRANSLATE_NOOP("QObject", ...).

/// One option of a group: the button's label and the value that the monitor gets.
struct Option
{
    const char *label;
    int value;
    const char *words = nullptr;   ///< one or two sentences: what it does, and when to use it
    const char *picture = nullptr; ///< of a swatch: its name under img/
};

/// How a group looks: a row of option buttons, the two halves of a switch (whatever on and off are called, off is the
/// left one), buttons that show a picture each, colour swatches, or option buttons of which several may be chosen. An
/// option's value is its bit then, and the group's value the bits of those that are chosen.
enum class GroupLook { Buttons, Switch, Pictures, Swatches, Several };

/// Draws an option on its button.
using DrawOption = void (*)(QPainter &painter, const QRectF &button, int value);

/// Buttons of which one is chosen, or several. A button's object name is "<group label>_<option label>".
struct OptionGroup
{
    const char *label;
    std::optional<Command> command; ///< none for options of the page's own, which go to no monitor
    std::span<const Option> options;
    std::optional<Capability> needs = {}; ///< shown only for monitors that have it
    GroupLook look = GroupLook::Buttons;
    const char *help = nullptr;    ///< a sentence that says what it is for, where no panel does
    DrawOption draw = nullptr;     ///< of buttons that show a picture each
    const char *caption = nullptr; ///< what stands before the options, where the label says more than is needed there
};

/// The two options of most switches; the blanks are part of the labels.
inline constexpr Option kSwitchOptions[] = {{QT_TRANSLATE_NOOP("QObject", "         Disable"), 0},
                                            {QT_TRANSLATE_NOOP("QObject", "         Enable"), 1}};

/// When a slider's value is sent: on every move, or when it is let go. It is stored on every move, or, by the last,
/// only when it is sent.
enum class SendOn { Move, Release, ReleaseWithStore };

/// Slider colours; Mint is the look's own.
enum class Accent { Mint, Red, Yellow, Green, Cyan, Blue, Magenta };

/// A slider. Its object name is the name; the caption may be shorter where a heading says the rest.
struct SliderSpec
{
    const char *name;
    const char *caption;
    Command command;
    int minimum;
    int maximum;
    SendOn sendOn = SendOn::Move;
    Accent accent = Accent::Mint;
    std::optional<Capability> needs = {};
    const char *help = nullptr; ///< as a group's
    const char *unit = nullptr; ///< of the value in words, such as "%1 s": see NoWheelSlider::setUnit
};

/// Sliders in columns, filled row by row, under a heading if there is one.
struct SliderGrid
{
    const char *heading; ///< may be null
    int columns;
    int captionWidth; ///< pixels
    std::span<const SliderSpec> sliders;
    bool showsAccents = false; ///< each slider's colour as a dot before its caption
};

/// Something that the page builds itself, by its name.
struct CustomPart
{
    const char *name;
};

/// The option of a value, of two with one value the first, which is the off side; null where the group has none.
const Option *optionOf(const OptionGroup &group, int value);

/// What an option is called outside of its button, in the language of now.
QString optionName(const Option &option);

using Section = std::variant<SliderGrid, OptionGroup, CustomPart>;

/// One entry of a page's own list, and what its panel holds. The panel's object name is the widget name.
struct PanelSpec
{
    const char *label;
    const char *icon; ///< picture name under img/entry/
    const char *widgetName;
    std::span<const Section> sections;
    std::optional<Capability> needs = {};
    const char *help = nullptr;            ///< a sentence that says what it is for
    const PanelPicture *picture = nullptr; ///< what its settings do, on the drawn monitor: see panelpicture.h
    std::optional<Capability> lacks = {};  ///< not for monitors that have this
};

class DeviceState;

/// Whether the monitor has what a panel is for.
bool isOffered(const PanelSpec &panel, const DeviceState &state);
