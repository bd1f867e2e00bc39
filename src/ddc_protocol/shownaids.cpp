#include "ddc_protocol/shownaids.h"

#include <algorithm>
#include <iterator>

namespace {

struct ShownAid
{
    Command value;
    Command onOff;
};
constexpr ShownAid kShownAids[] = {
    {Command::RefreshRatePlace, Command::RefreshRate},
    {Command::CrosshairShape, Command::Crosshair},
    {Command::StopwatchTime, Command::Stopwatch},
    {Command::GameTimeLength, Command::GameTime},
};

} // namespace

std::optional<Command> switchedOnBy(Command command)
{
    const auto found = std::ranges::find(kShownAids, command, &ShownAid::value);
    return found == std::end(kShownAids) ? std::nullopt : std::optional(found->onOff);
}
