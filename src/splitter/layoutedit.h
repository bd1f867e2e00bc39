#pragma once

#include <optional>
#include <vector>

#include <QPoint>

#include "splitter/splitlayout.h"

// Changes of a user's own layout. Each gives zones that cover the screen and are in order, or nothing where it cannot
// be done.

using Zones = std::vector<Zone>;

enum class Cut { Upright, Across };

/// Cuts a zone in two, at a part of the screen's side.
std::optional<Zones> cutZone(const Zones &zones, std::size_t index, Cut cut, int at);

/// Gives a zone to the neighbours of one side that end where it ends: first those at its left, then those above, at its
/// right and below.
std::optional<Zones> joinZone(const Zones &zones, std::size_t index);

/// The edge between zones that is nearest to a place and at most @p reach away: which way it runs, where it is, and
/// where along it the place is.
struct ZoneEdge
{
    Cut runs = Cut::Upright;
    int at = 0;
    int along = 0;
};
std::optional<ZoneEdge> edgeNear(const Zones &zones, const QPoint &place, int reach);

/// Moves an edge with all zones that end at it, as far as the smallest of them lets it.
std::optional<Zones> moveEdge(const Zones &zones, const ZoneEdge &edge, int to);

/// The zone that a place is in; zones.size() for a place beyond the screen.
std::size_t zoneAt(const Zones &zones, const QPoint &place);
