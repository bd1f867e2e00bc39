#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "splitter/placememory.h"

// What becomes of a window when the user wants it in a zone. Facts go in, a wish comes out; nothing here moves
// anything.

/// Why a window stays where it is.
enum class SplitRefusal {
    None,
    NoWindow, ///< none is in front, or only the desktop and the taskbar; or it is hidden
    NoScreen, ///< the screen that it is on cannot be told
    Hung,     ///< it does not answer
    Minimised,
    FullScreen,
    FixedSize,
    MoreRights, ///< its program has rights that this one has not
    NoOldPlace, ///< it was never put into a zone
    NoSuchZone,
    Failed, ///< the system says no more
};

/// What is known of a window, in pixels of the desktop.
struct WindowFacts
{
    WindowId id;
    std::uint32_t style = 0; ///< kStyle... bits; 0 for a window that is gone
    QString className;
    bool isHung = false;
    QRect rect;                   ///< with the frame that cannot be seen
    std::optional<QRect> visible; ///< without it; nothing where the system does not tell
    QRect screen;                 ///< the one that it is on; empty when that is not known
    QRect workArea;               ///< what windows may fill of that one
    std::vector<QRect> workAreas; ///< of all screens
    bool wasMaximised = false;    ///< until just before
};

struct SplitRequest
{
    enum class Kind { Zone, Next, Previous, Restore };
    Kind kind = Kind::Next;
    int zone = 0; ///< from 0, for the first kind
};

/// What to do now.
struct SplitWish
{
    SplitRefusal refusal = SplitRefusal::None;
    bool unmaximise = false; ///< first of all; then look at the window again and ask again
    QRect rect;              ///< the window's new rectangle, with the frame that cannot be seen
    bool maximise = false;   ///< and then maximise it
    std::optional<int> zone; ///< which it is put into; nothing for its old place
};

/// Whether a window belongs to the desktop itself: it is never meant.
bool isShellWindow(const QString &className);

/// The zone that a window is in; nothing when it is in none.
std::optional<int> zoneHolding(const WindowFacts &window, std::span<const QRect> zones, const RememberedPlace *memory);

/// The zone that was asked for; of a window that is in it already its old place, where that is known. "Next" and
/// "previous" go round; from outside they begin at the first and at the last. An old place on a screen that is gone
/// becomes one on the screen that the window is on.
SplitWish planSplit(const WindowFacts &window, std::span<const QRect> zones, const RememberedPlace *memory,
                    const SplitRequest &request);

/// What to remember of a window that was put into a zone and then had the rectangle @p placed: its old place is the one
/// before the first of several zones.
RememberedPlace placeBefore(const WindowFacts &window, const RememberedPlace *memory, const QRect &zone,
                            const QRect &placed);
