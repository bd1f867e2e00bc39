#include "ddc_protocol/automaticwriter.h"

#include <algorithm>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/settingsstore.h"
#include "ddc_protocol/writecounts.h"
#include "platform/desk.h"

namespace {

const QString kKey = QStringLiteral("Care/AutomaticWrites");

} // namespace

AutomaticWriter::AutomaticWriter(CommandQueue &queue, QObject *parent) : QObject(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::sent, this, &AutomaticWriter::onSent);
    connect(&queue, &CommandQueue::asked, this, [this] {
        const bool isAsked = !m_wishes.empty() && m_wishes.front().wasAsked && !m_wishes.front().wasSent;
        if (!isAsked || m_queue.isAsking()) // somebody else's questions; this one's turn comes
            return;
        m_waits = false;
        goOn();
    });
}

void AutomaticWriter::want(Command command, int value)
{
    const auto isWaiting = [command](const Wish &wish) { return wish.command == command && !wish.wasSent; };
    if (const auto older = std::find_if(m_wishes.begin(), m_wishes.end(), isWaiting); older != m_wishes.end())
        older->value = value;
    else
        m_wishes.push_back({command, value});
    goOn();
}

WriteFacts AutomaticWriter::factsOf(const Wish &wish) const
{
    const auto told = deviceState.isFresh(wish.command) ? deviceState.confirmed(wish.command) : std::nullopt;
    const qint64 today = writeCounts.countOf(monitorIdentity(), WriteCounts::kAutomatic).today;
    return {wish.value, told, wish.wasAsked, m_last, today, automaticWritesADay()};
}

void AutomaticWriter::goOn()
{
    if (m_waits || m_wishes.empty())
        return;
    Wish &wish = m_wishes.front();
    const WriteDecision decision = planWrite(factsOf(wish), platform::desk().clock().now());
    switch (decision.step) {
    case WriteStep::Ask:
        m_waits = wish.wasAsked = true;
        return m_queue.ask(wish.command);
    case WriteStep::Send:
        m_waits = wish.wasSent = true;
        return m_queue.post(wish.command, wish.value);
    case WriteStep::Wait:
        return wait(decision);
    case WriteStep::Done:
    case WriteStep::Drop:
        return settle(decision.step == WriteStep::Done);
    }
}

/// What the monitor told is old by then: it is asked once more.
void AutomaticWriter::wait(const WriteDecision &decision)
{
    platform::Clock &clock = platform::desk().clock();
    m_waits = true;
    clock.callLater(platform::milliseconds(clock.now().msecsTo(*decision.next)), this, [this] {
        m_waits = false;
        m_wishes.front().wasAsked = false;
        goOn();
    });
    if (!decision.dayIsUsedUp || m_toldOn == clock.now().date())
        return;
    m_toldOn = clock.now().date();
    Q_EMIT dayIsUsedUp(QObject::tr("Today's automatic changes of this monitor are used up (%1). They go on tomorrow; "
                                   "what you set yourself is not limited.")
                           .arg(automaticWritesADay().value_or(0)));
}

void AutomaticWriter::onSent(Command command, int value, bool ok)
{
    if (m_wishes.empty() || !m_wishes.front().wasSent || m_wishes.front().command != command)
        return;
    m_last = platform::desk().clock().now();
    if (ok)
        writeCounts.note(monitorIdentity(), WriteCounts::kAutomatic);
    settle(ok && value == m_wishes.front().value); // else the user moved the same control meanwhile, who wins
}

void AutomaticWriter::settle(bool ok)
{
    const Wish wish = m_wishes.front();
    m_wishes.pop_front();
    m_waits = false;
    Q_EMIT settled(wish.command, wish.value, ok);
    goOn();
}

std::optional<qint64> automaticWritesADay()
{
    bool isNumber = false;
    const qint64 stored = settingsString(kKey, {}, false, QLatin1String(kConfigFile)).toLongLong(&isNumber);
    if (!isNumber)
        return kWritesADay;
    return stored < 0 ? std::nullopt : std::optional(stored);
}

bool setAutomaticWritesADay(int count)
{
    return storeSetting(kKey, QString::number(count));
}
