#include "ddc_protocol/commandqueue.h"

#include <algorithm>

#include "ddc_protocol/transport.h"
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

void CommandQueue::drain()
{
    std::unique_lock lock(m_mutex);
    m_idle.wait(lock, [this] { return isIdle() || platform::programEnds(); });
}

bool CommandQueue::drainFor(platform::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_idle.wait_for(lock, limit, [this] { return isIdle(); });
}

void CommandQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stop || !m_pending.empty() || !m_questions.empty(); });
        if (!m_pending.empty())
            sendNext(lock);
        else if (m_stop)
            return;
        else
            askNext(lock);
    }
}

void CommandQueue::sendNext(std::unique_lock<std::mutex> &lock)
{
    const Pending next = m_pending.front();
    m_pending.erase(m_pending.begin());
    m_sending = true;
    lock.unlock();
    const bool ok = Korvu_SetCommandVal(writeRow(next.command), static_cast<std::uint16_t>(next.value), kRetryCount);
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
    lock.unlock();
    if (const std::optional<int> value = readCommandOnce(readRow(command)))
        Q_EMIT answered(command, *value);
    lock.lock();
}
