#include "page/Nightloom/work/livedisplay.h"

#include "page/Nightloom/work/ledworkthread.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kWorkerEnds{150};

} // namespace

void LiveDisplay::show(Show what)
{
    if (!m_interrupted)
        halt(what == Show::Nothing || (what == Show::Music && m_shown == Show::Clock));
    m_shown = what;
    if (!m_interrupted)
        goOn();
    Q_EMIT changed();
}

void LiveDisplay::setInterrupted(bool interrupted)
{
    if (interrupted == m_interrupted)
        return;
    if (interrupted)
        halt(m_shown != Show::Nothing);
    m_interrupted = interrupted;
    if (!interrupted)
        goOn();
}

void LiveDisplay::halt(bool endsDisplay)
{
    if (m_shown == Show::Music)
        Q_EMIT musicEnds();
    if (endsDisplay)
        ledWorkThread::instance()->endDisplay();
    else
        ledWorkThread::instance()->stop();
}

void LiveDisplay::goOn()
{
    if (m_shown == Show::Clock)
        ledWorkThread::instance()->begin(ledWorkThread::ClockLoop);
    else if (m_shown == Show::Music)
        Q_EMIT musicBegins();
}

LiveDisplay::Pause::Pause(LiveDisplay &display) : m_display(display)
{
    ledWorkThread::instance()->stop();
    platform::desk().clock().sleep(kWorkerEnds);
}

LiveDisplay::Pause::~Pause()
{
    if (m_display.streams(Show::Clock))
        m_display.goOn();
}
