#include "page/Emberline/lightlook.h"

#include <algorithm>
#include <iterator>

#include "ddc_protocol/devicestate.h"
#include "page/Emberline/lighttable.h"

namespace {

constexpr QRgb kLampColors[] = {0xffff2f2f, 0xffffd22e, 0xff35ff5c, 0xff2ee9ff, 0xff2f62ff, 0xffb63cff, 0xffffffff};
constexpr int kWhite = 6;                     // what is drawn for a colour that nobody knows
constexpr double kLevels[] = {0.3, 0.6, 1.0}; // soft, standard, highlight
constexpr double kSpeeds = 10, kPercent = 100;

// What lightLook() asks for.
constexpr Command kLookCommands[] = {
    Command::LightMode,           Command::LightEffect,
    Command::LightBrightness,     Command::LightSpeed,
    Command::LightColor,          Command::LightRed,
    Command::LightGreen,          Command::LightBlue,
    Command::LightTemperature,    Command::LightEyeCare,
    Command::LightFrontColor,     Command::LightRearColor,
    Command::LightDirection,      Command::LightFrontBrightness,
    Command::LightRearBrightness, Command::LampBeltColor,
    Command::LampBeltEffect,      Command::LampBeltBrightness,
    Command::LampBeltFrontColor,  Command::LampBeltRearColor,
    Command::LightGlobalTone,     Command::LightLeftTone,
    Command::LightRightTone,
};

/// The value that the monitor has or is to have.
std::optional<int> valueOf(const DeviceState &state, Command command)
{
    if (state.state(command) == ValueState::Refused)
        return state.confirmed(command);
    return state.isKnown(command) ? std::optional(state.value(command)) : std::nullopt;
}

/// Those values, one of them replaced.
class Values
{
public:
    Values(const DeviceState &state, const std::optional<LightPreview> &preview) : m_state(state), m_preview(preview) {}

    int of(Command command, int unknown = 0) const
    {
        if (m_preview && m_preview->command == command)
            return m_preview->value;
        return valueOf(m_state, command).value_or(unknown);
    }

    /// An option as an enumerator; the first one for what there is no option of.
    template <typename Option> Option option(Command command, Option last) const
    {
        const int value = of(command);
        return value >= 0 && value <= static_cast<int>(last) ? static_cast<Option>(value) : Option{};
    }

    double share(Command command, double of100, int unknown) const { return of(command, unknown) / of100; }
    double level(Command command) const { return kLevels[std::clamp(of(command, 1), 0, 2)]; }
    LightLook::Color color(Command command) const { return lampColor(of(command, kWhite)); }

private:
    const DeviceState &m_state;
    const std::optional<LightPreview> &m_preview;
};

} // namespace

LightLook::Color lampColor(int option)
{
    if (option < 0 || option >= static_cast<int>(std::size(kLampColors)))
        return {};
    return kLampColors[option];
}

int toneOf(QRgb color)
{
    const auto bits = [](int part, int highest) { return (part * highest + 127) / 255; };
    return bits(qRed(color), 31) << 11 | bits(qGreen(color), 63) << 5 | bits(qBlue(color), 31);
}

QRgb colorOfTone(int tone)
{
    return qRgb((tone >> 11 & 31) * 255 / 31, (tone >> 5 & 63) * 255 / 63, (tone & 31) * 255 / 31);
}

LightLook lightLook(const DeviceState &state, const std::optional<LightPreview> &preview)
{
    const Values values(state, preview);
    LightLook look;
    look.mode = values.option(Command::LightMode, LightLook::Mode::EyeCare);
    look.effect = values.option(Command::LightEffect, LightLook::Effect::Flicker);
    look.color = values.color(Command::LightColor);
    if (values.of(Command::LightColor) == kOwnLightColor)
        look.color = ownLightColor(state).value_or(kLampColors[kWhite]);
    look.brightness = values.share(Command::LightBrightness, kPercent, 100);
    look.speed = values.share(Command::LightSpeed, kSpeeds, 5);
    look.isReversed = values.of(Command::LightDirection) != 0;
    look.coldness = values.share(Command::LightTemperature, kPercent, 50);
    look.eyeCareLevel = values.level(Command::LightEyeCare);
    look.global = colorOfTone(values.of(Command::LightGlobalTone));
    look.left = colorOfTone(values.of(Command::LightLeftTone));
    look.right = colorOfTone(values.of(Command::LightRightTone));
    look.front = values.color(Command::LightFrontColor);
    look.rear = values.color(Command::LightRearColor);
    look.frontBrightness = values.share(Command::LightFrontBrightness, kPercent, 0);
    look.rearBrightness = values.share(Command::LightRearBrightness, kPercent, 0);
    look.beltEffect = values.option(Command::LampBeltEffect, LightLook::BeltEffect::Pearl);
    look.belt = values.color(Command::LampBeltColor);
    look.beltFront = values.color(Command::LampBeltFrontColor);
    look.beltRear = values.color(Command::LampBeltRearColor);
    look.beltBrightness = state.isKnown(Command::LampBeltBrightness) ? values.level(Command::LampBeltBrightness) : 0;
    return look;
}

std::optional<QRgb> ownLightColor(const DeviceState &state)
{
    const auto red = valueOf(state, Command::LightRed);
    const auto green = valueOf(state, Command::LightGreen);
    const auto blue = valueOf(state, Command::LightBlue);
    return red && green && blue ? std::optional(qRgb(*red, *green, *blue)) : std::nullopt;
}

std::span<const Command> lookCommands()
{
    return kLookCommands;
}
