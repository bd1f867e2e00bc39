#include "ddc_protocol/devicestate.h"

#include <algorithm>
#include <utility>

#include "platform/desk.h"

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

namespace {

constexpr qint64 kRefusalIsRead = 10'000; // ms
constexpr qint64 kMoment = 2000;          // ms

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

/// Both halves of a mode have the same number: 1 and 2 are the first mode, 3 and 4 the second.
int modeOf(int sceneValue)
{
    return (sceneValue + 1) / 2;
}

} // namespace

bool isInSceneBlock(Command command)
{
    return blockPlaceOf(command) < kSceneBlockLayout.size();
}

/// A refused mode is not on: the monitor is still in the one that it told.
int DeviceState::modeThatIsOn() const
{
    const Entry &scene = m_entries[placeOf(Command::SceneMode)];
    return scene.state == ValueState::Refused ? scene.confirmed.value_or(scene.value) : scene.value;
}

const DeviceState::Entry &DeviceState::entry(Command command) const
{
    const std::size_t place = isCustomHalf() ? blockPlaceOf(command) : kSceneBlockLayout.size();
    return place < m_custom.size() ? m_custom[place] : m_entries[placeOf(command)];
}

DeviceState::Entry &DeviceState::entry(Command command)
{
    return const_cast<Entry &>(std::as_const(*this).entry(command));
}

/// Every change of one value goes through here.
template <typename Change> void DeviceState::change(Command command, Change change)
{
    {
        const std::lock_guard lock(m_mutex);
        const int before = modeThatIsOn();
        change(entry(command));
        if (command == Command::SceneMode)
            followSceneMode(before);
    }
    notify(command);
}

/// Another mode's block is not this one's, and another half's values are not this half's.
void DeviceState::followSceneMode(int before)
{
    const Entry &scene = m_entries[placeOf(Command::SceneMode)];
    lastSceneModeSent = scene.state == ValueState::Refused ? scene.confirmed.value_or(0) : scene.value;
    const int mode = modeThatIsOn();
    if (mode == before)
        return;
    for (const Command command : kSceneBlockLayout)
        m_entries[placeOf(command)] = {};
    if (modeOf(mode) != modeOf(before))
        forgetBlock();
}

void DeviceState::forgetBlock()
{
    m_custom.fill({});
    m_custom[blockPlaceOf(Command::Sharpness)].value = kBlockNotValid;
    m_blockRead = false;
}

void DeviceState::clear()
{
    const std::lock_guard lock(m_mutex);
    m_entries.fill({});
    forgetBlock();
    officeMaximumHorizontal = 0;
    officeMaximumVertical = 0;
    lastSceneModeSent = 0;
    m_entries[placeOf(Command::SceneMode)].value = 10;
}

int DeviceState::value(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return entry(command).value;
}

ValueState DeviceState::state(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return entry(command).state;
}

std::optional<int> DeviceState::confirmed(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return entry(command).confirmed;
}

std::optional<QDateTime> DeviceState::confirmedAt(Command command) const
{
    const std::lock_guard lock(m_mutex);
    const Entry &found = entry(command);
    return found.confirmed ? std::optional(found.confirmedAt) : std::nullopt;
}

bool DeviceState::isFresh(const Entry &entry) const
{
    const QDateTime now = platform::desk().clock().now();
    return entry.confirmed && entry.state != ValueState::Unknown && entry.era == m_era &&
           entry.confirmedAt.msecsTo(now) < kMoment;
}

bool DeviceState::isFresh(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return isFresh(entry(command));
}

bool DeviceState::isSceneBlockFresh() const
{
    const std::lock_guard lock(m_mutex);
    return m_blockRead && std::all_of(m_custom.begin(), m_custom.end(), [this](auto &entry) { return isFresh(entry); });
}

void DeviceState::mayHaveChanged()
{
    const std::lock_guard lock(m_mutex);
    ++m_era;
}

std::optional<QDateTime> DeviceState::pendingSince(Command command) const
{
    const std::lock_guard lock(m_mutex);
    const Entry &found = entry(command);
    return found.state == ValueState::Pending ? std::optional(found.wishedAt) : std::nullopt;
}

void DeviceState::keepConfirmed(Entry &entry, int value)
{
    entry.confirmed = value;
    entry.confirmedAt = platform::desk().clock().now();
    entry.era = m_era;
}

void DeviceState::keepTold(Entry &entry, int value)
{
    keepConfirmed(entry, value);
    if (entry.state == ValueState::Pending)
        return;
    entry.value = value;
    if (entry.state != ValueState::Refused || entry.refusedAt.msecsTo(entry.confirmedAt) >= kRefusalIsRead)
        entry.state = ValueState::Known;
}

void DeviceState::preview(Command command, int value)
{
    change(command, [value](Entry &entry) { entry.value = value; });
}

void DeviceState::wish(Command command, int value)
{
    change(command, [value](Entry &entry) {
        entry.value = value;
        entry.state = ValueState::Pending;
        entry.wishedAt = platform::desk().clock().now();
    });
}

void DeviceState::taken(Command command, int value)
{
    change(command, [this, value](Entry &entry) {
        keepConfirmed(entry, value);
        if (entry.state == ValueState::Pending && entry.value != value)
            return; // a newer wish follows
        entry.value = value;
        entry.state = ValueState::Known;
    });
}

void DeviceState::refused(Command command, int value)
{
    change(command, [=, this](Entry &entry) {
        if (entry.state != ValueState::Pending || entry.value != value)
            return;
        entry.state = ValueState::Refused;
        entry.refusedAt = platform::desk().clock().now();
        if (command == Command::Sharpness && isCustomHalf())
            m_blockRead = false;
    });
}

void DeviceState::told(Command command, int value)
{
    change(command, [this, value](Entry &entry) { keepTold(entry, value); });
}

void DeviceState::Entry::doubt()
{
    if (state == ValueState::Known)
        state = ValueState::Unknown;
}

void DeviceState::doubt(Command command)
{
    change(command, [](Entry &entry) { entry.doubt(); });
    if (command != Command::SceneMode)
        return;
    doubtSceneBlock(); // nobody knows whose values these are
    for (const Command inBlock : kSceneBlockLayout)
        change(inBlock, [](Entry &entry) { entry.doubt(); });
}

void DeviceState::doubtSceneBlock()
{
    {
        const std::lock_guard lock(m_mutex);
        for (Entry &entry : m_custom)
            entry.doubt();
    }
    for (const Command command : kSceneBlockLayout)
        notify(command);
}

bool DeviceState::isDoubted(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return entry(command).state == ValueState::Unknown && entry(command).confirmed;
}

void DeviceState::store(Command command, int value)
{
    change(command, [this, value](Entry &entry) {
        entry = {};
        entry.value = value;
        if (value == -1)
            return;
        entry.state = ValueState::Known;
        keepConfirmed(entry, value);
    });
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

bool DeviceState::sceneBlockValid() const
{
    const std::lock_guard lock(m_mutex);
    return m_blockRead;
}

void DeviceState::invalidateSceneBlock()
{
    {
        const std::lock_guard lock(m_mutex);
        forgetBlock();
    }
    for (const Command command : kSceneBlockLayout)
        notify(command);
}

void DeviceState::forgetSettings()
{
    const int capability = value(Command::Capability);
    clear();
    store(Command::Capability, capability);
}

void DeviceState::storeSceneBlock(int mode, std::span<const std::uint8_t, kSceneBlockSize> block)
{
    {
        const std::lock_guard lock(m_mutex);
        if (modeOf(mode) != modeOf(modeThatIsOn()))
            return;
        for (std::size_t i = 0; i < m_custom.size(); ++i) {
            Entry &entry = m_custom[i];
            const bool isSwitch = kSceneBlockLayout[i] == Command::LightSensor;
            keepTold(entry, isSwitch ? block[i] != 0 : block[i]);
        }
        m_blockRead = true;
    }
    for (const Command command : kSceneBlockLayout)
        notify(command);
}

void DeviceState::setObserver(std::function<void(Command)> observer)
{
    const std::lock_guard lock(m_observerMutex);
    m_observer = std::move(observer);
}

void DeviceState::notify(Command command)
{
    const std::lock_guard lock(m_observerMutex);
    if (m_observer)
        m_observer(command);
}
