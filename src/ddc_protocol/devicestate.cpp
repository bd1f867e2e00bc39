#include "ddc_protocol/devicestate.h"

#include <algorithm>
#include <utility>

#include "ddc_protocol/shownaids.h"
#include "ddc_protocol/statestorage.h"
#include "platform/desk.h"

DeviceState deviceState;

DeviceState::DeviceState() : m_storage(std::make_unique<StateStorage>())
{
}

DeviceState::~DeviceState() = default;

/// Every change of one value goes through here.
template <typename Change> void DeviceState::change(Command command, Change change)
{
    {
        const std::lock_guard lock(m_mutex);
        const int before = m_storage->modeThatIsOn();
        change(m_storage->entry(command));
        if (command == Command::SceneMode) {
            const StateEntry &scene = m_storage->sceneMode();
            lastSceneModeSent = scene.state == ValueState::Refused ? scene.confirmed.value_or(0) : scene.value;
            m_storage->followSceneMode(before);
        }
    }
    notify(command);
}

/// Every change of the block goes through here; false from one that changes nothing.
template <typename Change> void DeviceState::changeBlock(Change change)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!change(*m_storage))
            return;
    }
    for (const Command command : kSceneBlockLayout)
        notify(command);
}

void DeviceState::clear()
{
    const std::lock_guard lock(m_mutex);
    m_storage->clear();
    officeMaximumHorizontal = 0;
    officeMaximumVertical = 0;
    lastSceneModeSent = 0;
}

int DeviceState::value(Command command) const
{
    const std::lock_guard lock(m_mutex);
    const StateEntry &found = m_storage->entry(command);
    return found.preview.value_or(found.value);
}

ValueState DeviceState::state(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->entry(command).state;
}

std::optional<int> DeviceState::confirmed(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->entry(command).confirmed;
}

std::optional<QDateTime> DeviceState::confirmedAt(Command command) const
{
    const std::lock_guard lock(m_mutex);
    const StateEntry &found = m_storage->entry(command);
    return found.confirmed ? std::optional(found.confirmedAt) : std::nullopt;
}

bool DeviceState::isFresh(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->isFresh(m_storage->entry(command));
}

bool DeviceState::isSceneBlockFresh() const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->isBlockRead && std::all_of(m_storage->custom.begin(), m_storage->custom.end(),
                                                 [this](auto &entry) { return m_storage->isFresh(entry); });
}

unsigned DeviceState::timesSetAnew() const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->timesSetAnew();
}

void DeviceState::mayHaveChanged()
{
    const std::lock_guard lock(m_mutex);
    m_storage->startEra();
}

std::optional<QDateTime> DeviceState::pendingSince(Command command) const
{
    const std::lock_guard lock(m_mutex);
    const StateEntry &found = m_storage->entry(command);
    return found.state == ValueState::Pending ? std::optional(found.wishedAt) : std::nullopt;
}

void DeviceState::preview(Command command, int value)
{
    change(command, [value](StateEntry &entry) { entry.preview = value; });
}

void DeviceState::dropPreview(Command command)
{
    change(command, [](StateEntry &entry) { entry.preview.reset(); });
}

void DeviceState::wish(Command command, int value)
{
    change(command, [value](StateEntry &entry) {
        entry.preview.reset();
        entry.value = value;
        entry.state = ValueState::Pending;
        entry.wishedAt = platform::desk().clock().now();
    });
}

void DeviceState::taken(Command command, int value)
{
    change(command, [=, this](StateEntry &entry) {
        const bool isPending = entry.state == ValueState::Pending;
        if (isInSceneBlock(command) && m_storage->leavesItsMode()) {
            entry.state = !isPending ? entry.state : entry.confirmed ? ValueState::Known : ValueState::Unknown;
            entry.value = isPending ? entry.confirmed.value_or(entry.value) : entry.value;
            return; // the half that is to be on keeps what it has
        }
        if (command == Command::SceneMode && entry.confirmed == value && value % 2 != 0)
            m_storage->setAnew();
        m_storage->keepConfirmed(entry, value);
        if (isPending && entry.value != value)
            return; // a newer wish follows
        entry.value = value;
        entry.state = ValueState::Known;
    });
    if (const std::optional<Command> onOff = switchedOnBy(command))
        told(*onOff, 1);
}

void DeviceState::refused(Command command, int value)
{
    change(command, [=, this](StateEntry &entry) {
        if (entry.state != ValueState::Pending || entry.value != value)
            return;
        entry.state = ValueState::Refused;
        entry.refusedAt = platform::desk().clock().now();
        if (command == Command::Sharpness && m_storage->isCustomHalf())
            m_storage->isBlockRead = false;
    });
}

void DeviceState::told(Command command, int value)
{
    change(command, [=, this](StateEntry &entry) {
        if (!isInSceneBlock(command) || !m_storage->leavesItsMode())
            m_storage->keepTold(entry, value);
    });
}

void DeviceState::doubt(Command command)
{
    change(command, [](StateEntry &entry) { entry.doubt(); });
    if (command != Command::SceneMode)
        return;
    doubtSceneBlock(); // nobody knows whose values these are
    for (const Command inBlock : kSceneBlockLayout)
        change(inBlock, [](StateEntry &entry) { entry.doubt(); });
}

void DeviceState::doubtSceneBlock()
{
    changeBlock([](StateStorage &storage) {
        for (StateEntry &entry : storage.custom)
            entry.doubt();
        return true;
    });
}

bool DeviceState::isDoubted(Command command) const
{
    const std::lock_guard lock(m_mutex);
    return m_storage->entry(command).state == ValueState::Unknown && m_storage->entry(command).confirmed;
}

void DeviceState::store(Command command, int value)
{
    change(command, [this, value](StateEntry &entry) {
        entry = {};
        entry.value = value;
        if (value == -1)
            return;
        entry.state = ValueState::Known;
        m_storage->keepConfirmed(entry, value);
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
    return m_storage->isBlockRead;
}

void DeviceState::forgetSettings()
{
    const int capability = value(Command::Capability);
    clear();
    store(Command::Capability, capability);
}

void DeviceState::storeSceneBlock(int mode, std::span<const std::uint8_t, kSceneBlockSize> block)
{
    changeBlock([mode, block](StateStorage &storage) {
        const bool isThisMode = isSameMode(mode, storage.modeThatIsOn());
        if (isThisMode)
            storage.keepBlock(block);
        return isThisMode;
    });
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
