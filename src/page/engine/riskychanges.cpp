#include "page/engine/riskychanges.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace {

struct RiskyChange
{
    Command command;
    int from; ///< the lowest value that is risky
};

constexpr int kAnyValue = INT_MIN;

constexpr RiskyChange kRiskyChanges[] = {
    {Command::OutputRange, kAnyValue}, // the wrong one washes the picture out, or swallows its shadows
    {Command::OsdLanguage, kAnyValue}, // a menu that one cannot read is hard to set back
    {Command::GrayResponse, 4},        // overdrive at its top draws haloes
    {Command::MenuLock, 1},            // the monitor's own buttons do nothing any more
    {Command::PowerSaving, 1},         // the picture may go dark
};

} // namespace

bool isRiskyChange(Command command, int value)
{
    return std::any_of(std::begin(kRiskyChanges), std::end(kRiskyChanges),
                       [=](const RiskyChange &change) { return change.command == command && value >= change.from; });
}
