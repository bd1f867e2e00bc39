#include "shortcut/shortcutsteps.h"
#include "ddc_protocol/commandtable.h"

namespace {

ShortcutStep evaluate(const FixedValues &rule, ShortcutKey key, const ReadRow &)
{
    return {writeRow(rule.command), key == ShortcutKey::Plus ? rule.plus : rule.minus};
}

ShortcutStep evaluate(const SteppedValue &rule, ShortcutKey key, const ReadRow &read)
{
    const int step = key == ShortcutKey::Plus ? rule.step : -rule.step;
    int value = read(readRow(rule.command)) + step;
    if (value == rule.leftOut)
        value += step;
    const bool stops = rule.atEnd == AtEnd::Stop;
    // Each key looks at its own end only: a step down from beyond the range comes nearer to it.
    if (key == ShortcutKey::Plus && value > rule.highest)
        value = stops ? rule.highest : 0;
    else if (key == ShortcutKey::Minus && value < 0)
        value = stops ? 0 : rule.highest;
    return {writeRow(rule.command), value};
}

ShortcutStep evaluate(OwnRule rule, ShortcutKey key, const ReadRow &read)
{
    return rule(key, read);
}

/// A step past the last value: switches the aid off, or, when it is off, begins with the first value again.
ShortcutStep endRound(int isOn, Command onOff, Command values, int first)
{
    constexpr bool kLocks = false;
    return isOn != 0 ? ShortcutStep{writeRow(onOff), 0, kLocks} : ShortcutStep{writeRow(values), first, kLocks};
}

/// Counts up without a look at the switch: the value behind the last one is the first, 0.
ShortcutStep countUp(Command command, int values, const ReadRow &read)
{
    const int next = read(readRow(command)) + 1;
    return next == values ? ShortcutStep{writeRow(command), 0, false} : ShortcutStep{writeRow(command), next};
}

/// An aid whose values begin with 1. At 1 a press while it is off only shows it.
ShortcutStep stepShownAid(Command onOff, Command values, int last, const ReadRow &read)
{
    const int isOn = read(readRow(onOff));
    const int current = read(readRow(values));
    if (current == 1 && isOn == 0)
        return {writeRow(values), 1, false};
    const int next = current + 1;
    if (next == last + 1)
        return endRound(isOn, onOff, values, 1);
    return {writeRow(values), next};
}

} // namespace

ShortcutStep shortcutStep(const ShortcutRule &rule, ShortcutKey key, const ReadRow &read)
{
    return std::visit([&](const auto &each) { return evaluate(each, key, read); }, rule);
}

ShortcutStep stepRefreshRate(ShortcutKey key, const ReadRow &read)
{
    constexpr int kLastPlace = 3;
    // The switch is asked for by the row that writes it. That is meant: the request on the wire is the same one.
    const int isOn = read(writeRow(Command::RefreshRate));
    const int place = read(readRow(Command::RefreshRatePlace));
    if (key == ShortcutKey::Plus) {
        if (place == kLastPlace)
            return endRound(isOn, Command::RefreshRate, Command::RefreshRatePlace, 0);
        return {writeRow(Command::RefreshRatePlace), place + 1};
    }
    if (place == 0)
        return endRound(isOn, Command::RefreshRate, Command::RefreshRatePlace, kLastPlace);
    return {writeRow(Command::RefreshRatePlace), place - 1};
}

ShortcutStep stepCrosshair(ShortcutKey key, const ReadRow &read)
{
    if (key == ShortcutKey::Plus)
        return stepShownAid(Command::Crosshair, Command::CrosshairShape, 6, read);
    return countUp(Command::CrosshairColor, 8, read);
}

ShortcutStep stepStopwatch(ShortcutKey key, const ReadRow &read)
{
    if (key == ShortcutKey::Plus)
        return stepShownAid(Command::Stopwatch, Command::StopwatchTime, 4, read);
    return countUp(Command::StopwatchPlace, 4, read);
}

ShortcutStep stepGameTime(ShortcutKey key, const ReadRow &read)
{
    constexpr int kLastLength = 4;
    constexpr int kPlaces = 4;
    const int isOn = read(readRow(Command::GameTime));
    if (key == ShortcutKey::Plus) {
        const int length = read(readRow(Command::GameTimeLength)) + 1;
        if (length == kLastLength + 1)
            return endRound(isOn, Command::GameTime, Command::GameTimeLength, 1);
        return {writeRow(Command::GameTimeLength), length};
    }
    // Unlike the stopwatch's, the corner begins anew only while the aid is on; while it is off the monitor is left to
    // refuse the value behind the last one.
    const int place = read(readRow(Command::GameTimePlace)) + 1;
    if (place == kPlaces && isOn != 0)
        return {writeRow(Command::GameTimePlace), 0, false};
    return {writeRow(Command::GameTimePlace), place};
}
