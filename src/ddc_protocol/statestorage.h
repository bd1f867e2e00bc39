#pragma once

#include <array>
#include <optional>

#include <QDateTime>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"

/// What the snapshot keeps about one value.
struct StateEntry
{
    int value = 0;              ///< wished, or told
    std::optional<int> preview; ///< shown in its place while a control is moved
    ValueState state = ValueState::Unknown;
    std::optional<int> confirmed; ///< by the monitor
    QDateTime confirmedAt;
    unsigned era = 0; ///< in which that was
    QDateTime wishedAt;
    QDateTime refusedAt;

    void doubt();
};

/// What the snapshot keeps about all values, both halves of the mode that is on. Guarded by its owner.
class StateStorage
{
public:
    StateStorage() { clear(); }

    void clear();

    /// The entry of the half that is on.
    StateEntry &entry(Command command);
    const StateEntry &entry(Command command) const;

    /// The mode, or the one that the monitor told where a wish was refused.
    int modeThatIsOn() const;
    bool isCustomHalf() const { return modeThatIsOn() % 2 == 0; }
    const StateEntry &sceneMode() const;
    /// Another mode than the monitor's own is on its way to it: what it says meanwhile belongs to the mode that it
    /// leaves.
    bool leavesItsMode() const;

    /// After a change of the scene mode: another mode's block is not this one's, and another half's values are not this
    /// half's. Takes the mode that was on before.
    void followSceneMode(int before);

    /// The mode that is on was set once more, by which the monitor takes back what was changed of its factory half.
    void setAnew();
    unsigned timesSetAnew() const { return m_timesSetAnew; }

    /// The monitor told a value, or took it.
    void keepConfirmed(StateEntry &entry, int value) const;
    /// The monitor told a value: shown, unless a wish waits or a refusal is still to be read.
    void keepTold(StateEntry &entry, int value) const;

    bool isFresh(const StateEntry &entry) const;
    void startEra() { ++m_era; }

    // The block of the custom half.
    std::array<StateEntry, kSceneBlockValues> custom; ///< in the block's order
    bool isBlockRead = false;
    void forgetBlock();
    void keepBlock(std::span<const std::uint8_t, kSceneBlockSize> block);

private:
    std::array<StateEntry, kCommandCodes> m_entries;
    unsigned m_timesSetAnew = 0;
    unsigned m_era = 0; ///< grows with everything after which the monitor may have changed
};

/// Whether two scene values are the halves of one mode: 1 and 2 are the first, 3 and 4 the second.
bool isSameMode(int sceneValue, int other);
