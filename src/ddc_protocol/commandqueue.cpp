#include "ddc_protocol/commandqueue.h"

#include <algorithm>
#include <utility>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/sceneblock.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
#include "platform/ending.h"

CommandQueue::CommandQueue(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<Command>();
    m_thread = std::thread(&CommandQueue::run, this);
}

CommandQueue::~CommandQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void CommandQueue::post(Command command, int value)
{
    deviceState.wish(command, value);
    {
        const std::lock_guard lock(m_mutex);
        const auto waiting = std::find_if(m_pending.begin(), m_pending.end(),
                                          [command](const Pending &pending) { return pending.command == command; });
        if (waiting != m_pending.end())
            waiting->value = value;
        else
            m_pending.push_back({command, value});
    }
    m_wake.notify_one();
}

void CommandQueue::ask(Command command)
{
    {
        const std::lock_guard lock(m_mutex);
        if (std::find(m_questions.begin(), m_questions.end(), command) == m_questions.end())
            m_questions.push_back(command);
    }
    m_wake.notify_one();
}

bool CommandQueue::isIdle()
{
    const std::lock_guard lock(m_mutex);
    return isSent() && !hasQuestion() && !m_asking;
}

bool CommandQueue::isAsking()
{
    const std::lock_guard lock(m_mutex);
    return hasQuestion() || m_asking;
}

void CommandQueue::askBlock(int mode)
{
    {
        const std::lock_guard lock(m_mutex);
        m_blockQuestion = mode;
    }
    m_wake.notify_one();
}

void CommandQueue::drain()
{
    std::unique_lock lock(m_mutex);
    m_idle.wait(lock, [this] { return isSent() || platform::programEnds(); });
}

bool CommandQueue::drainFor(platform::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_idle.wait_for(lock, limit, [this] { return isSent(); });
}

void CommandQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stop || !m_pending.empty() || hasQuestion(); });
        if (!m_pending.empty())
            sendNext(lock);
        else if (m_stop)
            return;
        else if (!m_questions.empty())
            askNext(lock);
        else
            askNextBlock(lock);
    }
}

void CommandQueue::sendNext(std::unique_lock<std::mutex> &lock)
{
    const Pending next = m_pending.front();
    m_pending.erase(m_pending.begin());
    m_sending = true;
    lock.unlock();
    const bool ok = sendWish(next.command, next.value);
    Q_EMIT sent(next.command, next.value, ok);
    lock.lock();
    m_sending = false;
    if (m_pending.empty())
        m_idle.notify_all();
}

void CommandQueue::askNext(std::unique_lock<std::mutex> &lock)
{
    const Command command = m_questions.front();
    m_questions.erase(m_questions.begin());
    m_asking = true;
    lock.unlock();
    const bool told = readCommandOnce(readRow(command)).has_value();
    if (!told)
        deviceState.doubt(command);
    lock.lock();
    noteAnswer(told, lock);
}

void CommandQueue::askNextBlock(std::unique_lock<std::mutex> &lock)
{
    const int mode = *m_blockQuestion;
    m_blockQuestion.reset();
    m_asking = true;
    lock.unlock();
    const bool told = readSceneBlockOnce(mode);
    if (!told)
        deviceState.doubtSceneBlock();
    lock.lock();
    noteAnswer(told, lock);
}

/// A monitor that sleeps is asked nothing more: each question would cost its time.
void CommandQueue::noteAnswer(bool told, std::unique_lock<std::mutex> &lock)
{
    m_asking = false;
    if (!told) {
        ++m_unanswered;
        if (!monitorAnswers()) {
            m_questions.clear();
            m_blockQuestion.reset();
        }
    }
    if (hasQuestion())
        return;
    const int unanswered = std::exchange(m_unanswered, 0);
    lock.unlock();
    Q_EMIT asked(unanswered);
    lock.lock();
}
