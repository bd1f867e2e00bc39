#include "page/OledCare/careplan.h"

#include <algorithm>

#include "platform/pause.h"

using namespace std::chrono_literals;
using platform::milliseconds;

namespace {

constexpr qint64 kHour = 3600;         // s
constexpr milliseconds kPatience = 1h; ///< between questions whether care is due
constexpr milliseconds kRunningLook = 30s;
constexpr milliseconds kReminderLook = 10s;
constexpr milliseconds kAway = 2min;
constexpr milliseconds kShown = 1min;

QDateTime after(const QDateTime &from, milliseconds time)
{
    return from.addMSecs(time.count());
}

bool isTime(const std::optional<QDateTime> &last, milliseconds pause, const QDateTime &now)
{
    return !last || platform::endOf(*last, pause, now) <= now;
}

/// Where the monitor begins by itself, it had the hours of a second interval for it.
bool hadItsChance(const CareFacts &facts)
{
    return !facts.isByItself || (facts.interval && facts.used >= 2 * *facts.interval * kHour);
}

} // namespace

std::optional<qint64> secondsLeft(const CareFacts &facts)
{
    if (!facts.interval)
        return {};
    return std::max<qint64>(*facts.interval * kHour - facts.used, 0);
}

bool isCareDue(const CareFacts &facts)
{
    return facts.isDue.value_or(secondsLeft(facts) == 0);
}

CareStep planCare(const CareFacts &facts, const QDateTime &now)
{
    if (facts.isRunning) {
        const bool asks = isTime(facts.asked, kRunningLook, now);
        return {asks, false, after(asks ? now : *facts.asked, kRunningLook)};
    }
    CareStep step{false, false, after(now, kCareLook)};
    const std::optional<qint64> left = secondsLeft(facts);
    if (left && *left > 0)
        step.lookAgain = std::min(step.lookAgain, now.addSecs(*left));
    const bool isOpen = !facts.isDue || (left == 0 && !*facts.isDue);
    step.asks = isOpen && isTime(facts.asked, kPatience, now);
    if (!facts.reminds || !isCareDue(facts) || !hadItsChance(facts))
        return step;
    step.reminds = !facts.putOff || *facts.putOff <= now;
    step.lookAgain = step.reminds ? after(now, kReminderLook) : std::min(step.lookAgain, *facts.putOff);
    return step;
}

bool isAway(const CarePresence &presence)
{
    return presence.sinceInput >= kAway;
}

ReminderStep planReminder(const CarePresence &presence, const QDateTime &now)
{
    if (presence.isFullScreen)
        return presence.shown ? ReminderStep::Hide : ReminderStep::Stay;
    if (!presence.shown)
        return isAway(presence) || presence.isElsewhere ? ReminderStep::Show : ReminderStep::Stay;
    return !isAway(presence) && after(*presence.shown, kShown) <= now ? ReminderStep::PutOff : ReminderStep::Stay;
}
