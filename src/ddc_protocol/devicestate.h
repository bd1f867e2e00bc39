#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <span>

#include <QDateTime>

#include "ddc_protocol/command.h"

inline constexpr int kSceneBlockSize = 40;   ///< bytes of the table read of a custom mode
inline constexpr int kSceneBlockValues = 37; ///< of which this many carry a value
inline constexpr int kBlockNotValid = 10;    ///< the Sharpness value of a block that has not been read
inline constexpr int kHighestSceneMode = 90;

class StateStorage;

/// What is known about a value of the monitor.
enum class ValueState {
    Unknown, ///< nobody has told it, or what was told no longer holds
    Known,   ///< the monitor told it, or took it
    Pending, ///< wished, and not answered yet
    Refused, ///< wished, and not taken
};

/// The snapshot of the monitor's settings, one for all pages: of each command the value that is shown, what is known
/// about it, and what the monitor itself is known to have. Users, keys and rules put in wishes; only the transport and
/// the session's reads put in answers, in the order of the wire, so that nothing late overwrites something newer.
///
/// The values of the scene-mode block exist twice, for the factory half of the mode that is on and for its custom half;
/// every function goes to the half that is on. Safe from any thread.
class DeviceState
{
public:
    DeviceState();
    ~DeviceState();

    /// Everything zero and unknown, but the scene mode 10 and the scene-mode block marked as not read.
    void clear();

    /// The value to show: where the user moves a control to, else his wish, else what the monitor told last; 0 when
    /// there is none, -1 after a patient read without an answer.
    int value(Command command) const;

    ValueState state(Command command) const;

    /// Whether there is a value to show: told by the monitor, or wished.
    bool isKnown(Command command) const { return state(command) != ValueState::Unknown; }

    /// What the monitor has, as far as it told; nothing when it did not.
    std::optional<int> confirmed(Command command) const;

    /// When it told that last.
    std::optional<QDateTime> confirmedAt(Command command) const;

    /// Whether it told that a moment ago, and nothing happened since after which it may have another value.
    bool isFresh(Command command) const;

    /// Since when a value is pending; nothing while it is not.
    std::optional<QDateTime> pendingSince(Command command) const;

    // Wishes.

    /// The user still moves a control: this is shown until he wishes it or drops it, and nothing is wished yet.
    void preview(Command command, int value);

    /// The user does not move it any more, and wished nothing: what was shown before is shown again.
    void dropPreview(Command command);

    /// Somebody wants a value: it is shown, and pending until the monitor has taken or refused it.
    void wish(Command command, int value);

    // Answers of the monitor.

    /// The monitor took a value, and with some it has switched a game aid on.
    void taken(Command command, int value);

    /// The monitor did not take a value. What is shown stays; a Sharpness leaves the block in doubt.
    void refused(Command command, int value);

    /// The monitor told a value. A wish that waits stays in sight, and that one was refused is said for ten seconds
    /// yet: the search that a refusal leads to asks again at once.
    void told(Command command, int value);

    /// The monitor was asked and did not tell: what it told before is in doubt, and with the scene mode all that a mode
    /// has of its own.
    void doubt(Command command);

    /// As doubt, for the whole block of the custom half.
    void doubtSceneBlock();

    /// Whether an unknown value was known before and only could not be told again.
    bool isDoubted(Command command) const;

    /// Keeps the result of a patient read, whatever stood there. -1 is "no answer": it is kept as returned and leaves
    /// the value unknown.
    void store(Command command, int value);

    bool has(Capability capability) const { return hasAny(static_cast<std::uint16_t>(capability)); }

    /// Of what a row needs: nothing is there for every monitor.
    bool has(std::optional<Capability> needs) const { return !needs || has(*needs); }

    /// Whether the monitor has at least one of some capabilities, given as bits of the capability word.
    bool hasAny(std::uint16_t bits) const;

    /// 1, 2 or 3; 0 when the monitor does not tell.
    int productLine() const;

    /// Loads the custom half from a mode's block as the monitor sent it; one of another mode than the one that is on is
    /// left out.
    void storeSceneBlock(int mode, std::span<const std::uint8_t, kSceneBlockSize> block);

    /// Whether the block of the mode that is on has been read, and nothing put it in doubt since.
    bool sceneBlockValid() const;

    /// Whether that was a moment ago: see isFresh.
    bool isSceneBlockFresh() const;

    /// How often a mode whose factory half was on has been set once more: what was told of that half is then in doubt.
    unsigned timesSetAnew() const;

    /// Something happened after which the monitor may have other values than it told. What is shown stays.
    void mayHaveChanged();

    /// Forgets everything but the model: what is read next belongs to a monitor that may be another one.
    void forgetSettings();

    /// Written by a full read, in the office area's units; 0 when not known.
    std::atomic<std::uint32_t> officeMaximumHorizontal = 0;
    std::atomic<std::uint32_t> officeMaximumVertical = 0;

    /// The scene mode that was last sent or read, so that an unchanged one is not sent again. A refusal takes it back.
    std::atomic<int> lastSceneModeSent = 0;

    /// Who is told of each command whose value or state has changed, on the thread that changed it; empty for nobody.
    void setObserver(std::function<void(Command)> observer);

private:
    template <typename Change> void change(Command command, Change change);
    template <typename Change> void changeBlock(Change change);
    void notify(Command command);

    mutable std::mutex m_mutex; // guards the storage
    const std::unique_ptr<StateStorage> m_storage;

    std::mutex m_observerMutex;
    std::function<void(Command)> m_observer;
};

/// The one snapshot. Filled by the device session, read by the pages.
extern DeviceState deviceState;

/// Which command each value of the scene-mode block belongs to, in the order of its bytes.
extern const std::array<Command, kSceneBlockValues> kSceneBlockLayout;

/// Whether a command's value is one of the scene-mode block's.
bool isInSceneBlock(Command command);
