#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <span>

#include "ddc_protocol/commandtable.h"

/// The bits of the capability word that the program looks at.
enum class Capability : std::uint16_t {
    LocalDimming = 1 << 0,
    HaloControl = 1 << 1,
    OledPanel = 1 << 2, ///< the care values are read
    ExtraScene = 1 << 3,
    MpcsMotion = 1 << 6, ///< the motion function is called MPCS, not DyDs, and has scenes of its own
    GameFunctions = 1 << 10,
};

inline constexpr int kSceneBlockSize = 40;   ///< bytes of the table read of a custom mode
inline constexpr int kSceneBlockValues = 37; ///< of which this many carry a value
inline constexpr int kBlockNotValid = 10;    ///< the Sharpness value of a block that has not been read
inline constexpr int kHighestSceneMode = 90;

/// The snapshot of the monitor's settings: one value for each command, whether it came from a single read, from the
/// scene-mode block or from the user, so that pages and snapshot always agree. A value may be read and stored from any
/// thread; the scene-mode worker does so.
class DeviceState
{
public:
    DeviceState() { clear(); }

    /// Everything zero and unknown, but the scene mode 10 and the scene-mode block marked as not valid.
    void clear();

    /// The last value of a command, 0 when none is known.
    int value(Command command) const;

    /// Whether the monitor has told the value, or the user has set it.
    bool isKnown(Command command) const;

    /// Keeps a value. -1 is the transport's "no answer": it is kept as returned, but does not make the value known.
    void store(Command command, int value);

    bool has(Capability capability) const { return hasAny(static_cast<std::uint16_t>(capability)); }

    /// Whether the monitor has at least one of some capabilities, given as bits of the capability word.
    bool hasAny(std::uint16_t bits) const;

    /// 1, 2 or 3; 0 when the monitor does not tell.
    int productLine() const;

    /// Loads the values of a scene-mode block as the monitor sent it.
    void storeSceneBlock(std::span<const std::uint8_t, kSceneBlockSize> block);

    bool sceneBlockValid() const { return value(Command::Sharpness) != kBlockNotValid; }

    /// Forgets the values of the scene-mode block: they belong to another mode.
    void invalidateSceneBlock();

    /// Forgets everything but the model: what is read next belongs to a monitor that may be another one.
    void forgetSettings();

    /// Keeps what the user has set. In a mode with factory parameters the change is not the custom block's, which then
    /// has to be read again before it is shown.
    void storeUserValue(Command command, int value);

    /// Written by a full read, in the office area's units; 0 when not known.
    std::atomic<std::uint32_t> officeMaximumHorizontal = 0;
    std::atomic<std::uint32_t> officeMaximumVertical = 0;

    /// The scene mode that was last sent or read, so that an unchanged one is not sent again.
    std::atomic<int> lastSceneModeSent = 0;

private:
    struct Entry
    {
        std::atomic<int> value = 0;
        std::atomic<bool> known = false;
    };
    std::array<Entry, kCommandCodes> m_entries;
};

/// The one snapshot. Filled by the device session, read by the pages; a page writes what it sends.
extern DeviceState deviceState;

/// Which command each value of the scene-mode block belongs to, in the order of its bytes.
extern const std::array<Command, kSceneBlockValues> kSceneBlockLayout;
