#pragma once

#include <cstdint>
#include <vector>

#include <QRect>

#include "platform/foreground.h"

/// Which window: a handle is given to another window when its own is gone, so its process counts as well.
struct WindowId
{
    platform::WindowHandle handle = nullptr;
    std::uint32_t process = 0;
    bool operator==(const WindowId &) const = default;
};

/// A window that was put into a zone, and where it was before.
struct RememberedPlace
{
    WindowId window;
    QRect before; ///< its whole rectangle
    bool wasMaximised = false;
    QRect zone;   ///< that it was put into, in pixels
    QRect placed; ///< its whole rectangle then: a window may have a size of its own
};

/// The old places of the windows that were moved last.
class PlaceMemory
{
public:
    static constexpr std::size_t kMostPlaces = 64; ///< the oldest goes

    /// Null for a window that was never put into a zone, or has its old place back.
    const RememberedPlace *find(const WindowId &window) const;

    /// In place of what was remembered of that window.
    void remember(const RememberedPlace &place);
    void forget(const WindowId &window);

private:
    std::vector<RememberedPlace> m_places; ///< the newest at the end
};
