#include "page/engine/pageresult.h"

#include <utility>

#include "controls/announcer.h"
#include "controls/messagestrip.h"
#include "controls/valuemark.h"
#include "page/engine/pagehead.h"

void PageResult::setHead(PageHead *head)
{
    m_head = head;
    connect(m_head->strip(), &MessageStrip::actionWanted, this, [this] {
        if (!m_monitor.isInUse())
            return tell(otherMonitorText());
        if (const auto again = m_tryAgain) // it may say anew what is to be tried
            again();
    });
}

QString PageResult::text() const
{
    return m_head ? m_head->strip()->text() : QString();
}

void PageResult::tell(const QString &why, std::function<void()> tryAgain)
{
    m_tryAgain = std::move(tryAgain);
    m_monitor = {};
    m_told = begin();
    if (m_head)
        m_head->strip()->say(why, MessageStrip::Tone::Refusal, m_tryAgain ? QObject::tr("Try again") : QString());
}

void PageResult::followMonitor()
{
    if (m_monitor.isAnotherInUse())
        tell({});
}

void PageResult::show(bool ok, const QString &again, std::function<void()> tryAgain)
{
    tell({});
    if (ok)
        return;
    const QString text =
        again.isEmpty() ? markText(Mark::Refused) : QObject::tr("The monitor did not take \"%1\".").arg(again);
    if (!m_head)
        return Announcer::say(text);
    tell(text, std::move(tryAgain));
}

void PageResult::showOf(unsigned change, bool ok, const QString &again, std::function<void()> tryAgain)
{
    if (change < m_told)
        return;
    show(ok, again, std::move(tryAgain));
    m_told = change;
}
