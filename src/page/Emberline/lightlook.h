#pragma once

#include <optional>
#include <span>

#include "ddc_protocol/command.h"
#include "page/Emberline/lightframe.h"

class DeviceState;

/// A value that nobody has set yet: an option that is pointed at.
struct LightPreview
{
    Command command;
    int value;
    bool operator==(const LightPreview &) const = default;
};

/// How the lamps are set, as far as the monitor told or is about to be told: what it refused they do not show. With one
/// value as if it were set.
LightLook lightLook(const DeviceState &state, const std::optional<LightPreview> &preview = {});

/// The user's own colour, as they have it; nothing while a part of it is not known.
std::optional<QRgb> ownLightColor(const DeviceState &state);

/// The commands whose values it shows.
std::span<const Command> lookCommands();

/// The colours of the lamp options, in their order; none for those that are not fixed.
LightLook::Color lampColor(int option);

/// A colour of the rhythm as it goes over the wire, 5 bits red, 6 green, 5 blue.
int toneOf(QRgb color);
QRgb colorOfTone(int tone);
