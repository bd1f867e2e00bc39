#include "ddc_protocol/commandqueue.h"

#include <algorithm>
#include <utility>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/linkstatus.h"
#include "ddc_protocol/sceneblock.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
#include "platform/desk.h"
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
        m_waiting.releaseAll();
    }
    m_wake.notify_one();
    m_thread.join();
}

void CommandQueue::post(Command command, int value)
{
    deviceState.wish(command, value);
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.put(command, value);
    }
    m_wake.notify_one();
}

void CommandQueue::postPaced(Command command, int value)
{
    deviceState.wish(command, value);
    platform::Clock &clock = platform::desk().clock();
    const QDateTime now = clock.now();
    std::optional<WaitingValues::Hold> hold;
    {
        const std::lock_guard lock(m_mutex);
        hold = m_waiting.putPaced(command, value, now);
    }
    if (!hold)
        return m_wake.notify_one();
    clock.callLater(hold->pause, this, [this, number = hold->number] { release(number); });
}

void CommandQueue::release(unsigned hold)
{
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.release(hold);
    }
    m_wake.notify_one();
}

void CommandQueue::ask(Command command)
{
    askAll(std::span(&command, 1), {});
}

void CommandQueue::askAll(std::span<const Command> commands, std::optional<int> blockMode)
{
    {
        const std::lock_guard lock(m_mutex);
        for (const Command command : commands) {
            if (std::find(m_questions.begin(), m_questions.end(), command) == m_questions.end())
                m_questions.push_back(command);
        }
        if (blockMode)
            m_blockQuestion = blockMode;
    }
    m_wake.notify_one();
}

bool CommandQueue::isIdle()
{
    const std::lock_guard lock(m_mutex);
    return isSent() && !hasQuestion() && !m_asking;
}

void CommandQueue::askBlock(int mode)
{
    askAll({}, mode);
}

void CommandQueue::dropQuestions()
{
    std::unique_lock lock(m_mutex);
    m_unanswered += static_cast<int>(m_questions.size()) + (m_blockQuestion ? 1 : 0);
    giveUp(lock);
    if (m_asking || hasQuestion() || m_unanswered == 0)
        return; // the last one ends them, or there was none
    lock.unlock();
    tellAsked();
}

/// Nothing of what waits is asked for any more.
void CommandQueue::giveUp(std::unique_lock<std::mutex> &lock)
{
    if (!hasQuestion())
        return;
    const QList<Command> commands(m_questions.begin(), m_questions.end());
    const bool block = m_blockQuestion.has_value();
    m_questions.clear();
    m_blockQuestion.reset();
    lock.unlock();
    Q_EMIT gaveUp(commands, block);
    lock.lock();
}

/// Whoever waits for his answer waits for this.
void CommandQueue::tellAsked()
{
    std::unique_lock lock(m_mutex);
    const int unanswered = std::exchange(m_unanswered, 0);
    lock.unlock();
    Q_EMIT asked(unanswered);
}

/// Nothing waits for its pause any more. Under the mutex.
void CommandQueue::hurry()
{
    m_waiting.releaseAll();
    m_wake.notify_one();
}

void CommandQueue::drain()
{
    std::unique_lock lock(m_mutex);
    hurry();
    m_idle.wait(lock, [this] { return isSent() || platform::programEnds(); });
}

bool CommandQueue::drainFor(platform::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    hurry();
    return m_idle.wait_for(lock, limit, [this] { return isSent(); });
}

void CommandQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stop || m_waiting.hasReady() || hasQuestion(); });
        if (m_waiting.hasReady())
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
    const WaitingValues::Value next = m_waiting.takeReady();
    m_sending = true;
    lock.unlock();
    const bool ok = sendWish(next.command, next.value);
    Q_EMIT sent(next.command, next.value, ok);
    lock.lock();
    m_sending = false;
    if (m_waiting.isEmpty())
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
    Q_EMIT answered(command, told);
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
    Q_EMIT blockAnswered(told);
    lock.lock();
    noteAnswer(told, lock);
}

/// A monitor that sleeps is asked nothing more: each question would cost its time.
void CommandQueue::noteAnswer(bool told, std::unique_lock<std::mutex> &lock)
{
    m_asking = false;
    if (!told) {
        ++m_unanswered;
        if (!monitorAnswers())
            giveUp(lock);
    }
    if (hasQuestion())
        return;
    lock.unlock();
    tellAsked();
    lock.lock();
}
