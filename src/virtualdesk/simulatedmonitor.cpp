#include "virtualdesk/simulatedmonitor.h"

namespace virtualdesk {

SimulatedMonitor::SimulatedMonitor(const MonitorModel &model, platform::Clock &clock)
    : m_model(model), m_clock(clock), m_memory(model), m_conversation(m_memory)
{
}

Reply SimulatedMonitor::read(std::uint8_t code)
{
    return request(RequestKind::Read, code, 0);
}

Reply SimulatedMonitor::write(std::uint8_t code, std::uint32_t value)
{
    return request(RequestKind::Write, code, value);
}

Reply SimulatedMonitor::request(RequestKind kind, std::uint8_t code, std::uint32_t value)
{
    const bool overlaps = m_inFlight.fetch_add(1) > 0;
    const auto latency = platform::milliseconds(m_delay + (kind == RequestKind::Read ? m_readLatency : m_writeLatency));
    if (latency.count() > 0)
        m_clock.sleep(latency);

    Request made{m_clock.now(), kind, code, value};
    Reply reply;
    {
        const std::lock_guard lock(m_mutex);
        if (overlaps)
            m_conversation.countInterleaved();
        m_memory.passTime(made.time);
        reply = serve(made);
        m_history.push_back(made);
        if (m_history.size() > kHistorySize)
            m_history.pop_front();
    }
    m_inFlight.fetch_sub(1);
    m_listeners.tell(made);
    return reply;
}

/// Serves a request through the faults that lie in wait.
Reply SimulatedMonitor::serve(Request &request)
{
    using Moment = WireFault::Moment;
    if (m_replay)
        return m_replay->answer(request);
    if (!m_plugged) {
        request.outcome = Outcome::Unplugged;
        return {kErrorNoSuchDevice};
    }
    Reply reply;
    const bool continues = m_conversation.continuesStream(request);
    if (m_asleep)
        stayUnheard(request, reply);
    if (m_asleep || m_faults.strike(Moment::Hearing, continues, request, reply)) {
        m_conversation.forget();
        return reply;
    }
    if (m_faults.strike(Moment::Taking, continues, request, reply)) {
        // A continuation was heard all the same: the stream moves on, and 0xFF brings what is missing.
        if (continues)
            m_conversation.skip(request);
        else
            m_conversation.forget();
        return reply;
    }

    reply = m_conversation.converse(request);
    if (request.kind == RequestKind::Write || !reply.ok())
        return reply;
    m_faults.strike(Moment::Answering, m_conversation.continuesStream(request), request, reply);
    if (!reply.ok()) {
        m_conversation.loseReply();
        return reply;
    }
    request.value = reply.current;
    request.maximum = reply.maximum;
    return reply;
}

std::uint16_t SimulatedMonitor::value(std::uint8_t code) const
{
    const std::lock_guard lock(m_mutex);
    m_memory.passTime(m_clock.now());
    return m_memory.value(code);
}

std::uint16_t SimulatedMonitor::maximum(std::uint8_t code) const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<std::uint16_t>(m_memory.answer(code).maximum);
}

void SimulatedMonitor::setValue(std::uint8_t code, std::uint16_t value)
{
    const std::lock_guard lock(m_mutex);
    m_memory.passTime(m_clock.now());
    m_memory.set(code, value);
}

QByteArray SimulatedMonitor::block(int mode) const
{
    if (mode < kFirstMode || mode > kLastMode)
        return {};
    const std::lock_guard lock(m_mutex);
    return {reinterpret_cast<const char *>(m_memory.block(mode).data()), kBlockSize};
}

void SimulatedMonitor::setBlock(int mode, const QByteArray &bytes)
{
    const std::lock_guard lock(m_mutex);
    m_memory.setBlock(mode, bytes);
}

void SimulatedMonitor::arm(const MonitorFault &fault, int times, int code)
{
    const std::lock_guard lock(m_mutex);
    m_faults.arm(fault, times, code);
}

bool SimulatedMonitor::isOn(const MonitorFault &fault) const
{
    if (const auto *event = std::get_if<DeskEvent>(&fault.does))
        return event->lasts != nullptr && event->lasts(*this);
    const std::lock_guard lock(m_mutex);
    return m_faults.isArmed(fault);
}

void SimulatedMonitor::recover()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

void SimulatedMonitor::setPlugged(bool plugged)
{
    const std::lock_guard lock(m_mutex);
    m_plugged = plugged;
    m_conversation.forget();
}

std::vector<Request> SimulatedMonitor::history() const
{
    const std::lock_guard lock(m_mutex);
    return {m_history.begin(), m_history.end()};
}

ProtocolFaults SimulatedMonitor::protocolFaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_conversation.faults();
}

} // namespace virtualdesk
