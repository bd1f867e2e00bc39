#pragma once

#include <optional>

#include <QObject>

#include "splitter/layoutstore.h"
#include "splitter/splitplan.h"
#include "splitter/splitscreen.h"

/// What became of a window that was to be arranged.
struct SplitResult
{
    SplitRefusal refusal = SplitRefusal::None;
    QString window;          ///< its title; may be empty
    std::optional<int> zone; ///< that it is in now; nothing for its old place
    int zones = 0;           ///< of the layout
    bool keptSize = false;   ///< it has a size of its own, so that its edges are not the zone's
};

/// Puts windows of other programs into zones, and back where they were. Interface thread only.
class WindowSplitter : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// The window that the user means: the one in front, or, while this program or the desktop is, the one before.
    /// Null when there is none.
    platform::WindowHandle windowMeant() const;

    /// The screen that a window is on.
    std::optional<SplitScreen> screenOf(platform::WindowHandle window) const;

    /// Where a window is now in a layout of its screen; nothing when it is in none of the zones.
    std::optional<int> zoneOf(platform::WindowHandle window, const SplitLayout &layout) const;

    /// Moves the window; without a layout, by the one that is chosen for its screen.
    SplitResult arrange(platform::WindowHandle window, const SplitRequest &request,
                        const std::optional<SplitLayout> &layout = {});

    /// A window came to the front.
    void noteInFront(platform::WindowHandle window);

private:
    bool isForeign(platform::WindowHandle window) const;
    WindowFacts factsOf(platform::WindowHandle window) const;
    QRect keepOnScreen(const WindowFacts &window, const QRect &placed) const;
    SplitRefusal carryOut(const SplitWish &wish, const WindowFacts &window, std::span<const QRect> zones,
                          SplitResult &result);

    PlaceMemory m_memory;
    platform::WindowHandle m_before = nullptr; ///< the last one of another program that was in front
};
