#include "ddc_protocol/statestorage.h"

#include <algorithm>
#include <utility>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "platform/desk.h"
#include "platform/pause.h"

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

namespace {

constexpr platform::milliseconds kRefusalIsRead{10'000};
constexpr platform::milliseconds kMoment{2000};

std::size_t placeOf(Command command)
{
    return static_cast<std::size_t>(commandPlace(static_cast<std::uint8_t>(command)));
}

/// The place of a command in the block; behind its end for the others.
std::size_t blockPlaceOf(Command command)
{
    return static_cast<std::size_t>(std::find(kSceneBlockLayout.begin(), kSceneBlockLayout.end(), command) -
                                    kSceneBlockLayout.begin());
}

} // namespace

bool isInSceneBlock(Command command)
{
    return blockPlaceOf(command) < kSceneBlockLayout.size();
}

bool isSameMode(int sceneValue, int other)
{
    return (sceneValue + 1) / 2 == (other + 1) / 2;
}

void StateEntry::doubt()
{
    if (state == ValueState::Known)
        state = ValueState::Unknown;
}

void StateStorage::clear()
{
    m_entries.fill({});
    forgetBlock();
    m_entries[placeOf(Command::SceneMode)].value = 10;
}

const StateEntry &StateStorage::sceneMode() const
{
    return m_entries[placeOf(Command::SceneMode)];
}

/// A refused mode is not on: the monitor is still in the one that it told.
int StateStorage::modeThatIsOn() const
{
    const StateEntry &scene = sceneMode();
    return scene.state == ValueState::Refused ? scene.confirmed.value_or(scene.value) : scene.value;
}

bool StateStorage::leavesItsMode() const
{
    const StateEntry &scene = sceneMode();
    return scene.state == ValueState::Pending && scene.confirmed && scene.confirmed != scene.value;
}

const StateEntry &StateStorage::entry(Command command) const
{
    const std::size_t place = isCustomHalf() ? blockPlaceOf(command) : kSceneBlockLayout.size();
    return place < custom.size() ? custom[place] : m_entries[placeOf(command)];
}

StateEntry &StateStorage::entry(Command command)
{
    return const_cast<StateEntry &>(std::as_const(*this).entry(command));
}

void StateStorage::followSceneMode(int before)
{
    const int mode = modeThatIsOn();
    if (mode == before)
        return;
    for (const Command command : kSceneBlockLayout)
        m_entries[placeOf(command)] = {};
    for (StateEntry &each : custom)
        each.preview.reset();
    if (!isSameMode(mode, before))
        forgetBlock();
}

void StateStorage::setAnew()
{
    ++m_timesSetAnew;
    for (const Command command : kSceneBlockLayout)
        m_entries[placeOf(command)].doubt();
}

void StateStorage::forgetBlock()
{
    custom.fill({});
    custom[blockPlaceOf(Command::Sharpness)].value = kBlockNotValid;
    isBlockRead = false;
}

void StateStorage::keepBlock(std::span<const std::uint8_t, kSceneBlockSize> block)
{
    for (std::size_t i = 0; i < custom.size(); ++i) {
        const bool isSwitch = kSceneBlockLayout[i] == Command::LightSensor;
        keepTold(custom[i], isSwitch ? block[i] != 0 : block[i]);
    }
    isBlockRead = true;
}

bool StateStorage::isFresh(const StateEntry &entry) const
{
    const QDateTime now = platform::desk().clock().now();
    return entry.confirmed && entry.state != ValueState::Unknown && entry.era == m_era &&
           platform::endOf(entry.confirmedAt, kMoment, now) > now;
}

void StateStorage::keepConfirmed(StateEntry &entry, int value) const
{
    entry.confirmed = value;
    entry.confirmedAt = platform::desk().clock().now();
    entry.era = m_era;
}

void StateStorage::keepTold(StateEntry &entry, int value) const
{
    keepConfirmed(entry, value);
    if (entry.state == ValueState::Pending)
        return;
    entry.value = value;
    if (entry.state != ValueState::Refused ||
        platform::endOf(entry.refusedAt, kRefusalIsRead, entry.confirmedAt) <= entry.confirmedAt)
        entry.state = ValueState::Known;
}
