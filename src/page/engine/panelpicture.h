#pragma once

#include <functional>
#include <optional>

#include "ddc_protocol/command.h"

class QPainter;
class QRectF;

/// What a picture is painted from: the value of each command, and whether it is only tried out.
struct PictureValues
{
    /// Nothing while a value is not known.
    std::function<std::optional<int>(Command)> valueOf;
    std::optional<Command> pointed = {}; ///< whose value is pointed at and not set

    bool isPreview() const { return pointed.has_value(); }
    int operator()(Command command, int otherwise) const { return valueOf(command).value_or(otherwise); }
    bool is(Command command, int value) const { return valueOf(command) == value; }
};

using PaintPicture = void (*)(QPainter &painter, const QRectF &screen, const PictureValues &values);

/// What the settings of a panel do, shown on the drawn monitor before they are chosen and while they are on.
struct PanelPicture
{
    /// What the screen shows, as it would look with an option that is pointed at.
    PaintPicture screen;
    /// What the monitor draws over that; null for nothing. What an option that is pointed at would draw is drawn once
    /// more, dashed.
    PaintPicture overlay = nullptr;
};
