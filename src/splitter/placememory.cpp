#include "splitter/placememory.h"

#include <algorithm>

const RememberedPlace *PlaceMemory::find(const WindowId &window) const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [&window](const RememberedPlace &place) { return place.window == window; });
    return found == m_places.end() ? nullptr : &*found;
}

void PlaceMemory::remember(const RememberedPlace &place)
{
    forget(place.window);
    if (m_places.size() == kMostPlaces)
        m_places.erase(m_places.begin());
    m_places.push_back(place);
}

void PlaceMemory::forget(const WindowId &window)
{
    std::erase_if(m_places, [&window](const RememberedPlace &place) { return place.window == window; });
}
