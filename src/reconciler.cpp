#include "reconciler.h"

#include <algorithm>
#include <utility>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/transport.h"
#include "page/engine/page.h"
#include "platform/desk.h"
#include "searchdevicedlg.h"

Reconciler::Reconciler(CommandQueue &queue, SearchDeviceDlg &session, PagesInSight pagesInSight, QObject *parent)
    : QObject(parent), m_queue(queue), m_session(session), m_pagesInSight(std::move(pagesInSight))
{
    connect(&queue, &CommandQueue::asked, this, &Reconciler::answered);
    setLinkObserver([this] { // within a request nothing new may begin
        QMetaObject::invokeMethod(this, &Reconciler::followLink, Qt::QueuedConnection);
    });
}

Reconciler::~Reconciler()
{
    setLinkObserver({});
}

void Reconciler::systemNoticed(SystemNotice notice)
{
    if (notice == SystemNotice::Woke || notice == SystemNotice::DisplaysChanged)
        handlesMayBeStale();
    else if (notice != SystemNotice::Locked) // nobody looks
        want();
}

void Reconciler::want()
{
    note();
    look();
}

void Reconciler::wantMode()
{
    m_facts.isWanted = m_facts.isWanted || !deviceState.isFresh(Command::SceneMode);
    look();
}

void Reconciler::note()
{
    m_facts.isWanted = true;
    m_facts.vainTries = 0;
    deviceState.mayHaveChanged();
}

/// Handles may be stale: there is a search first.
void Reconciler::handlesMayBeStale()
{
    m_facts.stale = platform::desk().clock().now();
    look();
}

void Reconciler::followLink()
{
    Q_EMIT linkChanged();
    if (!monitorAnswers())
        m_facts.asked = platform::desk().clock().now(); // whoever asked: the pauses count from here
    else if (!m_facts.isAsking)
        note();
    look();
}

void Reconciler::look()
{
    m_facts.isSeen = !m_pagesInSight().empty();
    m_facts.isSearching = m_session.isSearching();
    m_facts.answers = monitorAnswers();
    perform(planReconciliation(m_facts, platform::desk().clock().now()));
}

void Reconciler::perform(const ReconcileStep &step)
{
    ++m_looks;
    if (step.lookAgain) {
        platform::Clock &clock = platform::desk().clock();
        const platform::milliseconds pause(std::max<qint64>(clock.now().msecsTo(*step.lookAgain), 0));
        clock.callLater(pause, this, [this, looks = m_looks] {
            if (looks == m_looks)
                look();
        });
    }
    if (step.action == ReconcileStep::Ask)
        return ask();
    if (step.action != ReconcileStep::Search)
        return;
    m_facts.stale.reset();
    note();
    reloadEdidType = kReconnect;
    m_session.delayedSearchDevices();
    look();
}

/// A monitor that is silent is asked for one value only.
void Reconciler::ask()
{
    m_facts.isAsking = true;
    m_facts.asked = platform::desk().clock().now();
    m_queue.ask(Command::SceneMode);
    if (!m_facts.answers)
        return;
    m_facts.isWanted = false;
    if (!deviceState.isKnown(Command::Capability)) // what the monitor has stands below every page
        m_queue.ask(Command::Capability);
    for (Page *page : m_pagesInSight())
        page->reconcile();
}

/// Whoever asked: what was not told is asked for again. Only a try of its own makes the pauses longer: a page that
/// asks beside it is no second one.
void Reconciler::answered(int unanswered)
{
    const bool wasSilent = !m_facts.answers;
    const bool wasTry = std::exchange(m_facts.isAsking, false);
    m_facts.vainTries = unanswered == 0 ? 0 : wasTry ? m_facts.vainTries + 1 : std::max(m_facts.vainTries, 1);
    if (unanswered != 0)
        m_facts.asked = platform::desk().clock().now();
    if (wasSilent && monitorAnswers())
        note();
    look();
}
