#include "ddc_protocol/writebudget.h"

WriteDecision planWrite(const WriteFacts &facts, const QDateTime &now)
{
    if (facts.told == facts.value)
        return {WriteStep::Done};
    if (facts.aDay && facts.today >= *facts.aDay) // asking would be of no use either
        return {WriteStep::Wait, now.date().addDays(1).startOfDay(), true};
    if (!facts.told)
        return {facts.wasAsked ? WriteStep::Drop : WriteStep::Ask};
    const qint64 since = facts.last ? facts.last->msecsTo(now) : kBetweenWrites;
    if (since >= 0 && since < kBetweenWrites) // a clock that was set back holds nothing up
        return {WriteStep::Wait, facts.last->addMSecs(kBetweenWrites)};
    return {WriteStep::Send};
}
