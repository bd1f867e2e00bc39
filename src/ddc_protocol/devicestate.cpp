#include "ddc_protocol/devicestate.h"

#include <algorithm>

DeviceState deviceState;

// The hue values end in the order C, M, Y and the saturation values in Y, C, M: the monitor packs them so.
constinit const std::array<Command, kSceneBlockValues> kSceneBlockLayout = {
    Command::Brightness,        Command::Contrast,         Command::Sharpness,
    Command::ColorEnhance,      Command::ContrastEnhance,  Command::BlackLevel,
    Command::ColorTemperature,  Command::User1Red,         Command::User1Green,
    Command::User1Blue,         Command::User2Red,         Command::User2Green,
    Command::User2Blue,         Command::User3Red,         Command::User3Green,
    Command::User3Blue,         Command::HueRed,           Command::HueGreen,
    Command::HueBlue,           Command::HueCyan,          Command::HueMagenta,
    Command::HueYellow,         Command::SaturationRed,    Command::SaturationGreen,
    Command::SaturationBlue,    Command::SaturationYellow, Command::SaturationCyan,
    Command::SaturationMagenta, Command::LowBlueLight,     Command::Gamma,
    Command::SuperResolution,   Command::GrayResponse,     Command::NightViewTemperature,
    Command::LightSensor,       Command::LocalDimming,     Command::HaloControl,
    Command::MotionTech,
};

static std::size_t placeOf(Command command)
{
    return static_cast<std::size_t>(commandPlace(static_cast<std::uint8_t>(command)));
}

void DeviceState::clear()
{
    for (Entry &entry : m_entries) {
        entry.value = 0;
        entry.known = false;
    }
    officeMaximumHorizontal = 0;
    officeMaximumVertical = 0;
    lastSceneModeSent = 0;
    m_entries[placeOf(Command::SceneMode)].value = 10;
    m_entries[placeOf(Command::Sharpness)].value = kBlockNotValid;
}

int DeviceState::value(Command command) const
{
    return m_entries[placeOf(command)].value;
}

bool DeviceState::isKnown(Command command) const
{
    return m_entries[placeOf(command)].known;
}

void DeviceState::store(Command command, int value)
{
    Entry &entry = m_entries[placeOf(command)];
    entry.value = value;
    entry.known = value != -1;
}

bool DeviceState::hasAny(std::uint16_t bits) const
{
    const int word = value(Command::Capability);
    return word > 0 && (word & bits) != 0;
}

int DeviceState::productLine() const
{
    const int word = value(Command::Capability);
    return word > 0 ? (word >> 4) & 3 : 0;
}

void DeviceState::invalidateSceneBlock()
{
    for (const Command command : kSceneBlockLayout)
        m_entries[placeOf(command)].known = false;
    m_entries[placeOf(Command::Sharpness)].value = kBlockNotValid;
}

void DeviceState::forgetSettings()
{
    const int capability = value(Command::Capability);
    clear();
    store(Command::Capability, capability);
}

void DeviceState::storeUserValue(Command command, int value)
{
    const bool inBlock =
        std::find(kSceneBlockLayout.begin(), kSceneBlockLayout.end(), command) != kSceneBlockLayout.end();
    if (inBlock && sceneBlockValid() && this->value(Command::SceneMode) % 2 != 0)
        invalidateSceneBlock();
    store(command, value);
}

void DeviceState::storeSceneBlock(std::span<const std::uint8_t, kSceneBlockSize> block)
{
    for (std::size_t i = 0; i < kSceneBlockLayout.size(); ++i) {
        const bool isSwitch = kSceneBlockLayout[i] == Command::LightSensor;
        store(kSceneBlockLayout[i], isSwitch ? block[i] != 0 : block[i]);
    }
}
