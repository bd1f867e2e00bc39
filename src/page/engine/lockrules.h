#pragma once

#include <span>
#include <variant>

#include <QString>

#include "page/engine/pagetable.h"

class DeviceState;

// When a control of a page cannot be used, why, and what has to be changed first. The pages enable their controls by
// these tables and by nothing else, so that no lock is without its reason.

/// Sliders, by how their names begin.
struct SlidersNamed
{
    const char *prefix;
};

/// Options of every group of a command, by their values.
struct OptionsOf
{
    Command command;
    int first;
    int last;
};

/// What has to be changed before a control can be used: another control of the page, or the scene mode, which is the
/// window's to change.
struct LockTarget
{
    static constexpr int kChosenOption = -1;

    Command command;
    int option = kChosenOption; ///< which of its options to go to
};

struct LockRule
{
    std::variant<SlidersNamed, OptionsOf> controls;
    bool (*locks)(const DeviceState &state); ///< what is not known locks nothing
    const char *reason;                      ///< one sentence, source text
    LockTarget target;
};

/// The first rule that is about a slider; null for a slider that is never locked.
const LockRule *ruleFor(std::span<const LockRule> rules, const QString &slider);

/// The first rule that locks a slider, or an option of a command, now; null when it can be used.
const LockRule *lockOf(std::span<const LockRule> rules, const QString &slider, const DeviceState &state);
const LockRule *lockOf(std::span<const LockRule> rules, Command group, int option, const DeviceState &state);

/// Whether everything is known that may lock an option of a command.
bool areLocksKnown(std::span<const LockRule> rules, Command group, const DeviceState &state);

/// The value of a command when there is one to go by: told, or wished.
std::optional<int> shownValue(const DeviceState &state, Command command);

/// The limits of the motion function, on every page that offers it.
std::span<const LockRule> motionLocks();
