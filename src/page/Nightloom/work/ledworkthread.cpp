#include "page/Nightloom/work/ledworkthread.h"

#include <algorithm>
#include <utility>

#include "page/Nightloom/render/audiovisual.h"
#include "page/Nightloom/render/dateled.h"
#include "page/Nightloom/work/ledframesource.h"
#include "platform/desk.h"
#include "platform/ending.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"
#include "usb-hid/livesender.h"

namespace {

constexpr platform::milliseconds kClockPass{500};

std::atomic<bool> s_exists = false;

} // namespace

ledWorkThread *ledWorkThread::instance()
{
    static ledWorkThread thread;
    s_exists = true;
    return &thread;
}

ledWorkThread::~ledWorkThread()
{
    s_exists = false;
    wait();
}

void ledWorkThread::shutDown()
{
    if (!s_exists)
        return;
    ledWorkThread *thread = instance();
    thread->stop();
    {
        const std::lock_guard lock(thread->m_mutex);
        thread->m_waiting.clear();
        thread->m_shutDown.request_stop();
        thread->m_shutDown = std::stop_source();
    }
    stopUploads();
    thread->wait();
}

void ledWorkThread::setSource(LedFrameSource *source)
{
    const std::lock_guard lock(m_frameMutex);
    m_source = source;
}

void ledWorkThread::setLevels(std::vector<std::int32_t> levels)
{
    const std::lock_guard lock(m_mutex);
    m_levels = std::move(levels);
}

void ledWorkThread::begin(State state)
{
    const std::lock_guard lock(m_mutex);
    m_state = state;
    m_running = 0; // a clock loop would never end for what waits
    if (std::find(m_waiting.begin(), m_waiting.end(), state) == m_waiting.end())
        m_waiting.push_back(state);
    if (state == UploadText)
        m_uploadStop = uploadStop();
    if (std::exchange(m_works, true))
        return;
    startWork();
}

void ledWorkThread::stop()
{
    const std::lock_guard lock(m_mutex);
    m_running = 0;
    m_state = Stopped;
    std::erase_if(m_waiting, [](State state) { return state != UploadText; });
    exit(0);
}

void ledWorkThread::endDisplay()
{
    stop();
    const std::lock_guard lock(m_frameMutex); // a frame that is under way goes first
    AccessoryReport report;
    buildLiveStop(report);
    writePageReport(report);
}

std::optional<ledWorkThread::State> ledWorkThread::takeWork()
{
    const std::lock_guard lock(m_mutex);
    m_works = !m_waiting.empty();
    if (!m_works)
        return std::nullopt;
    const State state = m_waiting.front();
    m_waiting.pop_front();
    m_running = state == ClockLoop ? 1 : 0; // here, or a stop in between would be undone
    return state;
}

void ledWorkThread::run()
{
    while (const auto state = takeWork())
        work(*state);
}

void ledWorkThread::work(State state)
{
    switch (state) {
    case BuildSpectrum:
        return buildSpectrum();
    case SendSpectrum:
        return sendSpectrum();
    case ClockLoop:
        return runClock();
    case UploadText:
        return upload();
    case Stopped:
        break;
    }
}

void ledWorkThread::buildSpectrum()
{
    {
        const std::lock_guard lock(m_frameMutex);
        AudioVisual *visual = m_source ? m_source->audioVisual() : nullptr;
        if (!visual)
            return;
        visual->clear();
        const std::lock_guard levelsLock(m_mutex);
        visual->setLevels(m_levels);
    }
    tell([this] { Q_EMIT frameBuilt(0); });
}

void ledWorkThread::sendSpectrum()
{
    const std::lock_guard lock(m_frameMutex);
    AudioVisual *visual = m_source ? m_source->audioVisual() : nullptr;
    if (!visual)
        return;
    sendData(visual->frame());
    m_source->frameSent();
}

void ledWorkThread::runClock()
{
    std::stop_token ended;
    {
        const std::lock_guard lock(m_mutex);
        ended = m_shutDown.get_token();
    }
    while (showTime())
        platform::desk().clock().sleepUnlessStopped(kClockPass, ended);
}

/// False when the clock was stopped.
bool ledWorkThread::showTime()
{
    const std::lock_guard lock(m_frameMutex);
    if (m_running != 1 || platform::programEnds())
        return false;
    const QDateTime now = platform::desk().clock().now();
    m_minute = now.time().minute();
    if (const MatrixForm *form = accessoryLink.form) {
        const auto renderer = makeClockRenderer(*form);
        renderer->render(now.time());
        sendData(renderer->frame());
    }
    return true;
}

void ledWorkThread::upload()
{
    std::stop_token stop;
    {
        const std::lock_guard lock(m_mutex);
        stop = m_uploadStop;
    }
    const bool complete = uploadText(
        QLatin1String(kTextFile), [this](int percent) { report(percent); }, stop);
    tell([this, complete] { Q_EMIT uploadEnded(complete); });
}

void ledWorkThread::sendData(std::span<const std::int32_t> cells)
{
    sendLiveFrame(cells);
}
