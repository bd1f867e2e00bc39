#include "splitter/splitplan.h"

#include <algorithm>
#include <iterator>

#include "platform/desktopwindows.h"
#include "splitter/zoneplaces.h"

namespace {

constexpr int kHandle = 40; ///< pixels of a title bar
constexpr int kAsGood = 1;  ///< pixels by which the edges of a window may miss its zone's

/// The classes of the desktop, of the taskbars, and of what the user passes on the way to an icon of the tray: what
/// holds the hidden icons (Windows 10, 11, and the tray of Wine), start menu and search, and the choice of a task
/// (Windows 10, 11).
constexpr QLatin1String kShellClasses[] = {QLatin1String("Progman"),
                                           QLatin1String("WorkerW"),
                                           QLatin1String("Shell_TrayWnd"),
                                           QLatin1String("Shell_SecondaryTrayWnd"),
                                           QLatin1String("NotifyIconOverflowWindow"),
                                           QLatin1String("TopLevelWindowForOverflowXamlIsland"),
                                           QLatin1String("__winex11_standalone_tray"),
                                           QLatin1String("Windows.UI.Core.CoreWindow"),
                                           QLatin1String("MultitaskingViewFrame"),
                                           QLatin1String("XamlExplorerHostIslandWindow")};

bool has(const WindowFacts &window, std::uint32_t style)
{
    return (window.style & style) == style;
}

/// A game or a film: without a title bar over its whole screen.
bool isFullScreen(const WindowFacts &window)
{
    return !has(window, platform::kStyleCaption) && window.rect.contains(window.screen);
}

SplitRefusal refusalOf(const WindowFacts &window)
{
    if (!window.id.handle || !has(window, platform::kStyleVisible) || isShellWindow(window.className))
        return SplitRefusal::NoWindow;
    if (window.screen.isEmpty())
        return SplitRefusal::NoScreen;
    if (window.isHung)
        return SplitRefusal::Hung;
    if (has(window, platform::kStyleMinimised))
        return SplitRefusal::Minimised;
    if (isFullScreen(window))
        return SplitRefusal::FullScreen;
    return has(window, platform::kStyleSizable) ? SplitRefusal::None : SplitRefusal::FixedSize;
}

bool isAsGood(const QRect &a, const QRect &b)
{
    return std::abs(a.left() - b.left()) <= kAsGood && std::abs(a.top() - b.top()) <= kAsGood &&
           std::abs(a.right() - b.right()) <= kAsGood && std::abs(a.bottom() - b.bottom()) <= kAsGood;
}

/// Whether it is still where it was put.
bool wasLeftAlone(const WindowFacts &window, const RememberedPlace *memory)
{
    return memory && !window.wasMaximised && window.rect == memory->placed;
}

int zoneAskedFor(const SplitRequest &request, std::optional<int> current, int count)
{
    switch (request.kind) {
    case SplitRequest::Kind::Next:
        return current ? (*current + 1) % count : 0;
    case SplitRequest::Kind::Previous:
        return (current.value_or(0) + count - 1) % count;
    default:
        return request.zone;
    }
}

SplitWish refuse(SplitRefusal why)
{
    SplitWish wish;
    wish.refusal = why;
    return wish;
}

/// Whether enough of a window's upper edge would be in sight to drag it by.
bool canBeReached(const QRect &rect, std::span<const QRect> workAreas)
{
    const QRect handle(rect.topLeft(), QSize(rect.width(), std::min(rect.height(), kHandle)));
    return std::any_of(workAreas.begin(), workAreas.end(), [&handle](const QRect &area) {
        const QRect seen = handle & area;
        return seen.width() >= std::min(handle.width(), kHandle) && seen.height() >= handle.height() / 2;
    });
}

SplitWish oldPlace(const WindowFacts &window, const RememberedPlace *memory)
{
    if (!memory)
        return refuse(SplitRefusal::NoOldPlace);
    SplitWish wish;
    wish.rect = memory->before;
    if (!canBeReached(wish.rect, window.workAreas))
        wish.rect =
            movedInto({wish.rect.topLeft(), wish.rect.size().boundedTo(window.workArea.size())}, window.workArea);
    wish.maximise = memory->wasMaximised;
    return wish;
}

} // namespace

bool isShellWindow(const QString &className)
{
    return std::find(std::begin(kShellClasses), std::end(kShellClasses), className) != std::end(kShellClasses);
}

std::optional<int> zoneHolding(const WindowFacts &window, std::span<const QRect> zones, const RememberedPlace *memory)
{
    if (has(window, platform::kStyleMaximised) || window.wasMaximised)
        return {};
    const bool isPut = wasLeftAlone(window, memory);
    const auto found = std::find_if(zones.begin(), zones.end(), [&](const QRect &zone) {
        return isAsGood(window.visible.value_or(window.rect), zone) || (isPut && memory->zone == zone);
    });
    if (found == zones.end())
        return {};
    return static_cast<int>(found - zones.begin());
}

SplitWish planSplit(const WindowFacts &window, std::span<const QRect> zones, const RememberedPlace *memory,
                    const SplitRequest &request)
{
    if (const SplitRefusal refusal = refusalOf(window); refusal != SplitRefusal::None)
        return refuse(refusal);
    if (request.kind == SplitRequest::Kind::Restore && !memory)
        return refuse(SplitRefusal::NoOldPlace);
    const int count = static_cast<int>(zones.size());
    const std::optional<int> current = zoneHolding(window, zones, memory);
    const int asked = count > 0 ? zoneAskedFor(request, current, count) : -1;
    if (request.kind != SplitRequest::Kind::Restore && (asked < 0 || asked >= count))
        return refuse(SplitRefusal::NoSuchZone);
    if (has(window, platform::kStyleMaximised)) {
        SplitWish wish;
        wish.unmaximise = true;
        return wish;
    }
    const bool isSecondPress = request.kind == SplitRequest::Kind::Zone && asked == current && memory;
    if (isSecondPress || request.kind == SplitRequest::Kind::Restore)
        return oldPlace(window, memory);
    SplitWish wish;
    wish.zone = asked;
    wish.rect =
        zones[static_cast<std::size_t>(asked)] + invisibleFrame(window.rect, window.visible.value_or(window.rect));
    return wish;
}

RememberedPlace placeBefore(const WindowFacts &window, const RememberedPlace *memory, const QRect &zone,
                            const QRect &placed)
{
    if (wasLeftAlone(window, memory))
        return {window.id, memory->before, memory->wasMaximised, zone, placed};
    return {window.id, window.rect, window.wasMaximised, zone, placed};
}
