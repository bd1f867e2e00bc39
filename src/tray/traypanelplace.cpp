#include "tray/traypanelplace.h"

#include <algorithm>

namespace {

constexpr platform::milliseconds kSamePress{400}; // from taking the focus by the press to the tray's word of it

/// As std::clamp, but the smaller bound wins where there is no room.
int within(int value, int low, int high)
{
    return std::max(std::min(value, high), low);
}

/// Not so with a clock that was set back meanwhile.
bool isWithin(const std::optional<platform::milliseconds> &time, platform::milliseconds limit)
{
    return time && time->count() >= 0 && *time < limit;
}

} // namespace

QPoint placeTrayPanel(const QRect &icon, const QRect &available, const QSize &panel)
{
    const QRect room = available.adjusted(kTrayPanelGap, kTrayPanelGap, -kTrayPanelGap - panel.width(),
                                          -kTrayPanelGap - panel.height());
    const QPoint centre = icon.center();
    const int toBottom = available.bottom() - centre.y();
    const int toTop = centre.y() - available.top();
    const int toLeft = centre.x() - available.left();
    const int toRight = available.right() - centre.x();
    const int nearest = std::min({toBottom, toTop, toLeft, toRight});
    QPoint place(centre.x() - panel.width() / 2, centre.y() - panel.height() / 2);
    if (nearest == toBottom)
        place.setY(icon.top() - kTrayPanelGap - panel.height());
    else if (nearest == toTop)
        place.setY(icon.bottom() + 1 + kTrayPanelGap);
    else if (nearest == toRight)
        place.setX(icon.left() - kTrayPanelGap - panel.width());
    else
        place.setX(icon.right() + 1 + kTrayPanelGap);
    return {within(place.x(), room.left(), room.right() + 1), within(place.y(), room.top(), room.bottom() + 1)};
}

TrayPress meaningOfTrayPress(const TrayPressFacts &facts)
{
    if (isWithin(facts.sinceOpened, facts.doublePress))
        return TrayPress::ShowWindow;
    return facts.isOpen || isWithin(facts.sinceLeft, kSamePress) ? TrayPress::Close : TrayPress::Open;
}
