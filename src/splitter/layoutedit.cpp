#include "splitter/layoutedit.h"

#include <algorithm>
#include <cstdlib>

namespace {

/// One axis of a zone: an edge that runs upright moves along x, one that runs across along y.
struct Axis
{
    int Zone::*low;
    int Zone::*high;
};
constexpr Axis kAcrossX{&Zone::left, &Zone::right};
constexpr Axis kAcrossY{&Zone::top, &Zone::bottom};

/// In which direction an edge moves, and in which it runs.
Axis movesOf(Cut runs)
{
    return runs == Cut::Upright ? kAcrossX : kAcrossY;
}

Axis runsOf(Cut runs)
{
    return runs == Cut::Upright ? kAcrossY : kAcrossX;
}

int length(const Zone &zone, const Axis &axis)
{
    return zone.*axis.high - zone.*axis.low;
}

std::optional<Zones> checked(Zones zones)
{
    putInOrder(zones);
    return coversScreen(zones) ? std::optional(zones) : std::nullopt;
}

/// What becomes of a zone's neighbours at one side when it goes: nothing unless they end where it ends.
std::optional<Zones> givenToSide(const Zones &zones, std::size_t index, Cut runs, bool toLower)
{
    const Axis moves = movesOf(runs);
    const Axis along = runsOf(runs);
    const Zone gone = zones[index];
    Zones left = zones;
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(index));
    for (Zone &zone : left) {
        const bool touches = toLower ? zone.*moves.high == gone.*moves.low : zone.*moves.low == gone.*moves.high;
        if (!touches || zone.*along.low < gone.*along.low || zone.*along.high > gone.*along.high)
            continue;
        if (toLower)
            zone.*moves.high = gone.*moves.high;
        else
            zone.*moves.low = gone.*moves.low;
    }
    return checked(std::move(left));
}

/// The span of an edge: it goes on as long as a zone on either side reaches beyond what was found.
struct Span
{
    int low;
    int high;
};

Span spanOf(const Zones &zones, const ZoneEdge &edge)
{
    const Axis moves = movesOf(edge.runs);
    const Axis along = runsOf(edge.runs);
    Span span{edge.along, edge.along};
    for (bool grew = true; grew;) {
        grew = false;
        for (const Zone &zone : zones) {
            const bool ends = zone.*moves.low == edge.at || zone.*moves.high == edge.at;
            const bool meets = zone.*along.low < std::max(span.high, span.low + 1) && zone.*along.high > span.low;
            if (!ends || !meets || (zone.*along.low >= span.low && zone.*along.high <= span.high))
                continue;
            span = {std::min(span.low, zone.*along.low), std::max(span.high, zone.*along.high)};
            grew = true;
        }
    }
    return span;
}

} // namespace

std::optional<Zones> cutZone(const Zones &zones, std::size_t index, Cut cut, int at)
{
    if (index >= zones.size() || zones.size() >= kMostZones)
        return {};
    const Axis axis = movesOf(cut);
    Zones result = zones;
    Zone second = result[index];
    if (at - second.*axis.low < kLeastSide || second.*axis.high - at < kLeastSide)
        return {};
    result[index].*axis.high = at;
    second.*axis.low = at;
    result.push_back(second);
    return checked(std::move(result));
}

std::optional<Zones> joinZone(const Zones &zones, std::size_t index)
{
    if (index >= zones.size())
        return {};
    for (const bool toLower : {true, false}) {
        for (const Cut runs : {Cut::Upright, Cut::Across}) {
            if (auto joined = givenToSide(zones, index, runs, toLower))
                return joined;
        }
    }
    return {};
}

std::optional<ZoneEdge> edgeNear(const Zones &zones, const QPoint &place, int reach)
{
    std::optional<ZoneEdge> nearest;
    int distance = reach + 1;
    for (const Cut runs : {Cut::Upright, Cut::Across}) {
        const Axis moves = movesOf(runs);
        const Axis along = runsOf(runs);
        const int across = runs == Cut::Upright ? place.x() : place.y();
        const int where = runs == Cut::Upright ? place.y() : place.x();
        for (const Zone &zone : zones) {
            const int away = std::abs(zone.*moves.low - across);
            if (zone.*moves.low == 0 || away >= distance || where < zone.*along.low || where >= zone.*along.high)
                continue;
            nearest = ZoneEdge{runs, zone.*moves.low, where};
            distance = away;
        }
    }
    return nearest;
}

std::optional<Zones> moveEdge(const Zones &zones, const ZoneEdge &edge, int to)
{
    const Axis moves = movesOf(edge.runs);
    const Axis along = runsOf(edge.runs);
    const Span span = spanOf(zones, edge);
    const auto ends = [&](const Zone &zone, int Zone::*side) {
        return zone.*side == edge.at && zone.*along.low >= span.low && zone.*along.high <= span.high;
    };
    int lowest = 0;
    int highest = kWholeSide;
    for (const Zone &zone : zones) {
        if (ends(zone, moves.high))
            lowest = std::max(lowest, edge.at - std::max(0, length(zone, moves) - kLeastSide));
        if (ends(zone, moves.low))
            highest = std::min(highest, edge.at + std::max(0, length(zone, moves) - kLeastSide));
    }
    const int place = std::clamp(to, lowest, highest);
    if (place == edge.at)
        return {};
    Zones result = zones;
    for (Zone &zone : result) {
        if (ends(zone, moves.high))
            zone.*moves.high = place;
        else if (ends(zone, moves.low))
            zone.*moves.low = place;
    }
    return checked(std::move(result));
}

std::size_t zoneAt(const Zones &zones, const QPoint &place)
{
    const auto found = std::find_if(zones.begin(), zones.end(), [&place](const Zone &zone) {
        return place.x() >= zone.left && place.x() < zone.right && place.y() >= zone.top && place.y() < zone.bottom;
    });
    return static_cast<std::size_t>(found - zones.begin());
}
