#include "reconcileplan.h"

#include <algorithm>

#include "platform/pause.h"

namespace {

using platform::milliseconds;

constexpr milliseconds kSettles{1000};
constexpr milliseconds kFirstPause{1000};
constexpr milliseconds kLongestPause{60'000};
constexpr int kTries = 3;     // of what a monitor that answers does not tell
constexpr int kDoublings = 6; // to the longest pause

milliseconds pauseAfter(int vainTries)
{
    return std::min(kFirstPause * (1 << std::clamp(vainTries - 1, 0, kDoublings)), kLongestPause);
}

ReconcileStep at(const QDateTime &due, const QDateTime &now, ReconcileStep::Action action)
{
    return due <= now ? ReconcileStep{action} : ReconcileStep{ReconcileStep::Nothing, due};
}

} // namespace

ReconcileStep planReconciliation(const ReconcileFacts &facts, const QDateTime &now)
{
    if (facts.isSearching)
        return {};
    if (facts.stale)
        return at(platform::endOf(*facts.stale, kSettles, now), now, ReconcileStep::Search);
    if (facts.isAsking || !facts.isSeen)
        return {};
    if (facts.answers && facts.isWanted)
        return {ReconcileStep::Ask};
    const bool triesAgain = !facts.answers || (facts.vainTries > 0 && facts.vainTries <= kTries);
    if (!triesAgain || !facts.asked)
        return {};
    return at(platform::endOf(*facts.asked, pauseAfter(facts.vainTries), now), now, ReconcileStep::Ask);
}
