#include "reconcileplan.h"

#include <algorithm>

namespace {

constexpr int kSettles = 1000;        // ms
constexpr int kFirstPause = 1000;     // ms
constexpr int kLongestPause = 60'000; // ms
constexpr int kTries = 3;             // of what a monitor that answers does not tell
constexpr int kDoublings = 6;         // to the longest pause

int pauseAfter(int vainTries)
{
    return std::min(kFirstPause << std::clamp(vainTries - 1, 0, kDoublings), kLongestPause);
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
        return at(facts.stale->addMSecs(kSettles), now, ReconcileStep::Search);
    if (facts.isAsking || !facts.isSeen)
        return {};
    if (facts.answers && facts.isWanted)
        return {ReconcileStep::Ask};
    const bool triesAgain = !facts.answers || (facts.vainTries > 0 && facts.vainTries <= kTries);
    return triesAgain && facts.asked ? at(facts.asked->addMSecs(pauseAfter(facts.vainTries)), now, ReconcileStep::Ask)
                                     : ReconcileStep{};
}
