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
constexpr platform::milliseconds kLookEvery{60'000};

} // namespace

AutomaticWriter::AutomaticWriter(CommandQueue &queue, QObject *parent) : QObject(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::sent, this, &AutomaticWriter::onSent);
    connect(&queue, &CommandQueue::answered, this, &AutomaticWriter::onAnswered);
    connect(&queue, &CommandQueue::gaveUp, this, [this](const QList<Command> &commands) {
        for (const Command command : commands)
            onAnswered(command, false);
    });
}

void AutomaticWriter::want(Command command, int value)
{
    dropOthers();
    const auto begin = m_wishes.begin() + (m_step == Step::Sends ? 1 : 0);
    const auto older = std::find_if(begin, m_wishes.end(), [=](const Wish &wish) { return wish.command == command; });
    if (older != m_wishes.end())
        older->value = value;
    else
        m_wishes.push_back({command, value, monitorIdentity()});
    goOn();
}

void AutomaticWriter::takeBack(Command command)
{
    const bool isSending = m_step == Step::Sends;
    const auto begin = m_wishes.begin() + (isSending ? 1 : 0);
    m_wishes.erase(std::remove_if(begin, m_wishes.end(), [=](const Wish &wish) { return wish.command == command; }),
                   m_wishes.end());
    if (isSending)
        return;
    setStep(Step::Begins); // the first may be another one now
    for (Wish &wish : m_wishes)
        wish.wasAsked = false;
}

void AutomaticWriter::drop(Command command)
{
    takeBack(command);
    goOn();
}

void AutomaticWriter::wantNow(Command command, int value)
{
    takeBack(command);
    m_now.insert_or_assign(command, value);
    m_queue.post(command, value);
    goOn();
}

bool AutomaticWriter::isDayUsedUp()
{
    const std::optional<qint64> aDay = automaticWritesADay();
    return aDay && writeCounts.countOf(monitorIdentity(), WriteCounts::kAutomatic).today >= *aDay;
}

WriteFacts AutomaticWriter::factsOf(const Wish &wish) const
{
    const auto told = deviceState.isFresh(wish.command) ? deviceState.confirmed(wish.command) : std::nullopt;
    const qint64 today = writeCounts.countOf(wish.monitor, WriteCounts::kAutomatic).today;
    return {wish.value, told, wish.wasAsked, m_last, today, automaticWritesADay()};
}

void AutomaticWriter::goOn()
{
    if (m_step != Step::Begins)
        return;
    dropOthers();
    if (m_wishes.empty())
        return;
    Wish &wish = m_wishes.front();
    const WriteDecision decision = planWrite(factsOf(wish), platform::desk().clock().now());
    switch (decision.step) {
    case WriteStep::Ask:
        wish.wasAsked = true;
        setStep(Step::Asks);
        return m_queue.ask(wish.command);
    case WriteStep::Send:
        setStep(Step::Sends);
        return m_queue.post(wish.command, wish.value);
    case WriteStep::Wait:
        return wait(decision);
    case WriteStep::Done:
    case WriteStep::Drop:
        return settle(decision.step == WriteStep::Done);
    }
}

void AutomaticWriter::setStep(Step step)
{
    m_step = step;
    ++m_steps;
}

/// What the monitor told is old by then: it is asked once more. A day is not waited for in one piece, for the budget
/// may be set anew and another monitor come into use.
void AutomaticWriter::wait(const WriteDecision &decision)
{
    platform::Clock &clock = platform::desk().clock();
    setStep(Step::Waits);
    const platform::milliseconds pause(clock.now().msecsTo(*decision.next));
    clock.callLater(std::min(pause, kLookEvery), this, [this, steps = m_steps] {
        if (steps != m_steps)
            return;
        m_wishes.front().wasAsked = false;
        setStep(Step::Begins);
        goOn();
    });
    if (!decision.dayIsUsedUp || m_toldOn == clock.now().date())
        return;
    m_toldOn = clock.now().date();
    Q_EMIT dayIsUsedUp(dayIsUsedUpText());
}

/// What was meant for another monitor than the one in use, unless it is on its way.
void AutomaticWriter::dropOthers()
{
    const QString monitor = monitorIdentity();
    while (m_step != Step::Sends && !m_wishes.empty() && m_wishes.front().monitor != monitor) {
        const Wish wish = m_wishes.front();
        m_wishes.pop_front();
        setStep(Step::Begins);
        Q_EMIT settled(wish.command, wish.value, false);
    }
}

/// What was told may be in doubt again by now: then it is asked once more.
void AutomaticWriter::onAnswered(Command command, bool told)
{
    if (m_step != Step::Asks || m_wishes.front().command != command)
        return;
    m_wishes.front().wasAsked = !told;
    setStep(Step::Begins);
    goOn();
}

void AutomaticWriter::onSent(Command command, int value, bool ok)
{
    onSentNow(command, value, ok);
    if (m_step != Step::Sends || m_wishes.front().command != command)
        return;
    m_last = platform::desk().clock().now();
    if (ok)
        writeCounts.note(m_wishes.front().monitor, WriteCounts::kAutomatic);
    settle(ok && value == m_wishes.front().value); // else the user moved the same control meanwhile, who wins
}

/// One that follows an older value of the same command is still to come.
void AutomaticWriter::onSentNow(Command command, int value, bool ok)
{
    const auto now = m_now.find(command);
    if (now == m_now.end())
        return;
    const int wanted = now->second;
    if (value != wanted && deviceState.state(command) == ValueState::Pending)
        return;
    m_last = platform::desk().clock().now();
    m_now.erase(now);
    Q_EMIT settled(command, wanted, value == wanted ? ok : deviceState.confirmed(command) == wanted);
}

void AutomaticWriter::settle(bool ok)
{
    const Wish wish = m_wishes.front();
    m_wishes.pop_front();
    setStep(Step::Begins);
    Q_EMIT settled(wish.command, wish.value, ok);
    goOn();
}

QString dayIsUsedUpText()
{
    return QObject::tr("Today's automatic changes of this monitor are used up (%1). They go on tomorrow; "
                       "what you set yourself is not limited.")
        .arg(automaticWritesADay().value_or(0));
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
