#include "page/OledCare/carekeeper.h"

#include <utility>

#include <QUrl>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/settingsstore.h"
#include "page/OledCare/caretable.h"
#include "platform/desk.h"

using platform::NotificationState;

namespace {

const QString kRemindKey = QStringLiteral("OledCare/Reminder");
constexpr platform::milliseconds kFirstLook{1000}; // the start is not to wait for it

QString keyOf(const QString &monitor)
{
    return QStringLiteral("OledCare/%1").arg(QString::fromLatin1(QUrl::toPercentEncoding(monitor)));
}

bool isCareFact(Command command)
{
    return command == Command::CareDue || command == Command::CareRunning || command == Command::CareInterval ||
           command == Command::CareMode || command == Command::Capability;
}

QDateTime timeNow()
{
    return platform::desk().clock().now();
}

} // namespace

CareKeeper::CareKeeper(CommandQueue &queue, QObject *parent)
    : QObject(parent), m_queue(queue),
      m_reminds(settingsString(kRemindKey, {}, false, QLatin1String(kConfigFile)) != QLatin1String("off"))
{
    connect(&queue.values(), &ValueWatch::changed, this, [this](Command command) {
        if (isCareFact(command))
            look();
    });
    platform::desk().clock().callLater(kFirstLook, this, [this] { look(); });
}

CareKeeper::~CareKeeper()
{
    if (m_monitor.isEmpty())
        return;
    count(timeNow());
    store();
}

CareFacts CareKeeper::facts() const
{
    CareFacts facts;
    if (const std::optional<int> due = deviceState.confirmed(Command::CareDue))
        facts.isDue = *due != 0;
    facts.isRunning = deviceState.confirmed(Command::CareRunning).value_or(0) != 0;
    facts.interval = hoursOfInterval(deviceState.confirmed(Command::CareInterval));
    facts.isByItself = deviceState.confirmed(Command::CareMode) == kCareByItself;
    facts.used = m_history.used;
    facts.reminds = m_reminds;
    facts.asked = m_asked;
    facts.putOff = m_history.putOff;
    return facts;
}

/// Another monitor has another panel.
void CareKeeper::chooseMonitor()
{
    const QString monitor = deviceState.has(Capability::OledPanel) ? monitorIdentity() : QString();
    if (monitor == m_monitor)
        return;
    if (!m_monitor.isEmpty()) {
        count(timeNow());
        store();
    }
    m_monitor = monitor;
    m_counted = timeNow();
    m_history = {};
    if (!monitor.isEmpty())
        m_history =
            CareHistory::fromText(settingsString(keyOf(monitor), {}, false, QLatin1String(kConfigFile)), m_counted);
    m_stored = m_history.used;
    m_asked.reset();
    endReminder();
}

/// A panel whose monitor is silent is not in use.
void CareKeeper::count(const QDateTime &now)
{
    m_history.forgetFuture(now);
    if (monitorAnswers())
        m_history.use(m_counted, now);
    m_counted = now;
}

void CareKeeper::noteTold(const QDateTime &now)
{
    const CareFacts known = facts();
    const std::optional<QDateTime> told = deviceState.confirmedAt(Command::CareDue);
    const bool askedWhenOver = secondsLeft(known) == 0 && m_asked && told && *told >= *m_asked;
    if (m_history.note(known.isDue, known.isRunning, askedWhenOver, now))
        store();
}

/// Counts, and does what is to be done now; only the last look is followed by another one.
void CareKeeper::look()
{
    chooseMonitor();
    ++m_looks;
    if (m_monitor.isEmpty())
        return Q_EMIT changed();
    const QDateTime now = timeNow();
    count(now);
    noteTold(now);
    const bool isCountedAnew = m_history.used < m_stored; // since a care that could not be stored
    if (isCountedAnew || m_history.used - m_stored >= kCareLook.count() / 1000)
        store();
    const CareStep step = planCare(facts(), now);
    platform::Clock &clock = platform::desk().clock();
    clock.callLater(platform::milliseconds(now.msecsTo(step.lookAgain)), this, [this, looks = m_looks] {
        if (looks == m_looks)
            look();
    });
    if (step.asks && monitorAnswers()) { // whoever tries a silent one counts the pauses between
        m_asked = now;
        ask();
    }
    step.reminds ? remind(now) : endReminder();
    Q_EMIT changed();
}

void CareKeeper::remind(const QDateTime &now)
{
    platform::Presence &system = platform::desk().presence();
    const NotificationState state = system.notificationState().value_or(NotificationState::Accepts);
    CarePresence presence;
    presence.sinceInput = system.sinceInput().value_or(platform::milliseconds(0));
    presence.isFullScreen = state < NotificationState::Accepts;
    const platform::WindowHandle front = platform::desk().windows().foregroundWindow();
    const platform::WindowHandle before = std::exchange(m_front, front);
    presence.isElsewhere = before && front && before != front;
    if (m_shown && (isAway(presence) || *m_shown > now))
        m_shown = now; // nobody has seen it yet, or the clock was set back
    presence.shown = m_shown;
    switch (planReminder(presence, now)) {
    case ReminderStep::Stay:
        break;
    case ReminderStep::Show:
        m_shown = now;
        Q_EMIT reminderWanted();
        break;
    case ReminderStep::Hide:
        endReminder();
        break;
    case ReminderStep::PutOff:
        putOff();
        break;
    }
}

void CareKeeper::endReminder()
{
    m_front = nullptr;
    if (std::exchange(m_shown, std::nullopt))
        Q_EMIT reminderGone();
}

void CareKeeper::putOff()
{
    m_history.putOff = timeNow().addMSecs(kCarePutOff.count());
    store();
    look();
}

void CareKeeper::begun()
{
    m_asked = timeNow();
    ask();
    endReminder();
}

/// What has no control of the page, and what the plan needs that nobody has told yet.
void CareKeeper::ask()
{
    for (const Command command : {Command::CareMode, Command::CareInterval}) {
        if (!deviceState.confirmed(command))
            m_queue.ask(command);
    }
    m_queue.ask(Command::CareRunning);
    m_queue.ask(Command::CareDue);
}

bool CareKeeper::setReminds(bool reminds)
{
    m_reminds = reminds;
    const bool stored = storeSetting(kRemindKey, reminds ? QStringLiteral("on") : QStringLiteral("off"));
    look();
    return stored;
}

/// What cannot be written now is tried again with the next that is counted; the log tells.
void CareKeeper::store()
{
    if (storeSetting(keyOf(m_monitor), m_history.text()))
        m_stored = m_history.used;
}
