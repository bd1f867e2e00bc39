#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <QString>

#include "page/pageid.h"

class DeviceState;

/// One entry of a left bar.
struct NavigationEntry
{
    const char *label; ///< source text
    const char *icon;  ///< picture name under img/entry/
    PageId page = PageId::Empty;
    int sceneValue = 0;         ///< the scene mode that the entry switches to; 0 for an entry that opens a page
    std::uint16_t needsAny = 0; ///< capability bits of which the monitor must have one; 0 for an entry of every monitor
    std::uint16_t pageNeeds = 0;   ///< the same for the page: such an entry may be chosen, and says what is missing
    const char *lacking = nullptr; ///< what it says then, as a source text; %1 is the monitor
};

/// One tab of the window.
struct NavigationFamily
{
    const char *label;
    const char *icon;            ///< picture name under img/tab/
    bool startsSelected = false; ///< the first entry is selected from the start
};

inline constexpr int kFamilies = 9;
inline constexpr int kSceneFamilies = 4; ///< the first families show scene modes
inline constexpr int kAccessoryFamily = 7;

/// The tabs in their order.
std::span<const NavigationFamily, kFamilies> navigationFamilies();

/// Why an entry's page would be empty for the connected monitor, by its name; empty where the monitor has what the page
/// needs.
QString lackOf(const NavigationEntry &entry, const DeviceState &state);

/// The entries of a family's left bar, 0 to 8, for the connected monitor.
std::vector<NavigationEntry> navigationEntries(int family, const DeviceState &state);
