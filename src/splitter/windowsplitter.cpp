#include "splitter/windowsplitter.h"

#include <QCoreApplication>

#include "platform/desk.h"
#include "splitter/zoneplaces.h"

namespace {

platform::DesktopWindows &windows()
{
    return platform::desk().windows();
}

/// A window that is gone has no style, and one whose program was closed to its icon is hidden.
bool isShown(platform::WindowHandle window)
{
    return window && (windows().style(window) & platform::kStyleVisible) != 0;
}

} // namespace

bool WindowSplitter::isForeign(platform::WindowHandle window) const
{
    return window && !isShellWindow(windows().className(window)) &&
           platform::desk().foreground().processOf(window) != QCoreApplication::applicationPid();
}

platform::WindowHandle WindowSplitter::windowMeant() const
{
    const platform::WindowHandle front = windows().foregroundWindow();
    if (isForeign(front))
        return front;
    return isShown(m_before) ? m_before : nullptr;
}

void WindowSplitter::noteInFront(platform::WindowHandle window)
{
    if (isForeign(window))
        m_before = window;
}

std::optional<SplitScreen> WindowSplitter::screenOf(platform::WindowHandle window) const
{
    return window ? splitScreenOf(windows().displayOf(window)) : std::nullopt;
}

WindowFacts WindowSplitter::factsOf(platform::WindowHandle window) const
{
    WindowFacts facts;
    facts.id = {window, window ? platform::desk().foreground().processOf(window) : 0};
    const std::optional<QRect> rect = window ? windows().windowRect(window) : std::nullopt;
    if (!rect)
        return facts; // without a style it counts as gone
    facts.rect = *rect;
    facts.style = windows().style(window);
    facts.className = windows().className(window);
    facts.isHung = windows().isHung(window);
    facts.visible = windows().visibleRect(window);
    return facts;
}

std::optional<int> WindowSplitter::zoneOf(platform::WindowHandle window, const SplitLayout &layout) const
{
    const WindowFacts facts = factsOf(window);
    const auto screen = screenOf(window);
    if (facts.style == 0 || !screen)
        return {};
    return zoneHolding(facts, zoneRects(layout.zones, screen->workArea), m_memory.find(facts.id));
}

SplitResult WindowSplitter::arrange(platform::WindowHandle window, const SplitRequest &request,
                                    const std::optional<SplitLayout> &layout)
{
    SplitResult result;
    WindowFacts facts = factsOf(window);
    if (facts.style != 0)
        result.window = platform::desk().foreground().windowText(window);
    std::vector<QRect> zones;
    if (const auto screen = screenOf(window)) {
        facts.screen = screen->bounds;
        facts.workArea = screen->workArea;
        for (const SplitScreen &each : splitScreens())
            facts.workAreas.push_back(each.workArea);
        zones = zoneRects(layout.value_or(loadLayouts(screen->key()).chosen).zones, screen->workArea);
    }
    result.zones = static_cast<int>(zones.size());
    SplitWish wish = planSplit(facts, zones, m_memory.find(facts.id), request);
    if (wish.unmaximise) {
        const WindowFacts before = facts;
        windows().showWindow(window, platform::ShowWindowAs::Restored);
        facts = factsOf(window);
        facts.screen = before.screen;
        facts.workArea = before.workArea;
        facts.workAreas = before.workAreas;
        facts.wasMaximised = true;
        wish = planSplit(facts, zones, m_memory.find(facts.id), request);
        if (wish.unmaximise) // it does not let itself be restored, so it cannot be moved either
            wish.refusal = SplitRefusal::MoreRights;
    }
    result.refusal = carryOut(wish, facts, zones, result);
    if (result.refusal != SplitRefusal::None && facts.wasMaximised)
        windows().showWindow(window, platform::ShowWindowAs::Maximised);
    return result;
}

/// One that is larger than its zone is not to reach over the next screen. Where it is then.
QRect WindowSplitter::keepOnScreen(const WindowFacts &window, const QRect &placed) const
{
    const QRect seen = placed - invisibleFrame(window.rect, window.visible.value_or(window.rect));
    const QPoint way = movedInto(seen, window.workArea).topLeft() - seen.topLeft();
    if (way.isNull() || windows().moveWindow(window.id.handle, placed.translated(way)) != 0)
        return placed;
    return windows().windowRect(window.id.handle).value_or(placed.translated(way));
}

SplitRefusal WindowSplitter::carryOut(const SplitWish &wish, const WindowFacts &window, std::span<const QRect> zones,
                                      SplitResult &result)
{
    if (wish.refusal != SplitRefusal::None)
        return wish.refusal;
    const std::uint32_t error = windows().moveWindow(window.id.handle, wish.rect);
    if (error != 0)
        return error == platform::kErrorAccessDenied ? SplitRefusal::MoreRights : SplitRefusal::Failed;
    result.zone = wish.zone;
    if (!wish.zone) {
        if (wish.maximise)
            windows().showWindow(window.id.handle, platform::ShowWindowAs::Maximised);
        m_memory.forget(window.id);
        return SplitRefusal::None;
    }
    QRect placed = windows().windowRect(window.id.handle).value_or(wish.rect);
    result.keptSize = placed != wish.rect;
    if (result.keptSize)
        placed = keepOnScreen(window, placed);
    m_memory.remember(
        placeBefore(window, m_memory.find(window.id), zones[static_cast<std::size_t>(*wish.zone)], placed));
    return SplitRefusal::None;
}
