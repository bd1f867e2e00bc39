#include "virtualdesk/simulatedmonitor.h"

#include <algorithm>

#include "virtualdesk/osdfunctions.h"

namespace virtualdesk {

namespace {

constexpr std::uint8_t kVendorCode = 0x99;
constexpr std::uint8_t kNextChunk = 0xFE;
constexpr std::uint8_t kSameChunk = 0xFF;
constexpr int kChunkSize = 4;
constexpr int kChunks = kBlockSize / kChunkSize;

bool isContinuation(std::uint8_t code)
{
    return code == kNextChunk || code == kSameChunk;
}

bool isCommand(std::uint8_t code)
{
    const auto codes = commandCodes();
    return std::binary_search(codes.begin(), codes.end(), code);
}

bool isSelector(std::uint8_t code)
{
    return code % 2 == 0 && code > kFirstMode && code <= kLastMode;
}

} // namespace

SimulatedMonitor::SimulatedMonitor(const MonitorModel &model, platform::Clock &clock)
    : m_model(model), m_clock(clock), m_memory(model)
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
            ++m_protocolFaults.interleaved;
        reply = serve(made);
        m_history.push_back(made);
        if (m_history.size() > kHistorySize)
            m_history.pop_front();
    }
    m_inFlight.fetch_sub(1);
    tell(made);
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
    const bool continues = continuesStream(request);
    if (m_asleep)
        stayUnheard(request, reply);
    if (m_asleep || m_faults.strike(Moment::Hearing, continues, request, reply)) {
        forgetConversation();
        return reply;
    }
    if (m_faults.strike(Moment::Taking, continues, request, reply)) {
        // A continuation was heard all the same: the stream moves on, and 0xFF brings what is missing.
        if (continues)
            continueStream(request);
        else
            forgetConversation();
        return reply;
    }

    reply = converse(request);
    if (request.kind == RequestKind::Write || !reply.ok())
        return reply;
    m_faults.strike(Moment::Answering, continuesStream(request), request, reply);
    if (!reply.ok()) {
        if (m_announcement)
            m_announcement->heard = false;
        return reply;
    }
    request.value = reply.current;
    request.maximum = reply.maximum;
    return reply;
}

bool SimulatedMonitor::continuesStream(const Request &request) const
{
    return request.kind == RequestKind::Read && isContinuation(request.code) && m_stream;
}

/// Serves a request by the vendor protocol.
Reply SimulatedMonitor::converse(Request &request)
{
    if (request.code == kVendorCode)
        return announce(request);
    if (request.kind == RequestKind::Read && isContinuation(request.code))
        return continueStream(request);
    if (m_selectorExpected && request.kind == RequestKind::Read && isSelector(request.code)) {
        m_selectorExpected = false;
        m_stream = Stream{request.code, 0};
        return answerChunk();
    }
    return command(request);
}

Reply SimulatedMonitor::announce(Request &request)
{
    if (m_announcement && m_announcement->heard)
        ++m_protocolFaults.brokenPairs;
    if (m_stream)
        ++m_protocolFaults.openStreams;
    forgetConversation();
    m_announcement = Announcement{request.kind, request.value, std::this_thread::get_id(), true};
    return {};
}

Reply SimulatedMonitor::continueStream(Request &request)
{
    if (!m_stream) {
        ++m_protocolFaults.stray;
        forgetConversation();
        request.outcome = Outcome::Unexpected;
        return {kErrorNotSupported};
    }
    if (request.code == kNextChunk)
        ++m_stream->chunk;
    if (m_stream->chunk < kChunks)
        return answerChunk();
    m_stream.reset();
    return {};
}

Reply SimulatedMonitor::command(Request &request)
{
    const std::optional<Announcement> announcement = m_announcement;
    if (m_stream)
        ++m_protocolFaults.openStreams;
    forgetConversation();
    if (!announcement)
        ++m_protocolFaults.unannounced;
    if (!announcement || !matchesAnnouncement(request, *announcement)) {
        request.outcome = Outcome::Unexpected;
        return {kErrorNotSupported};
    }
    if (!isCommand(request.code)) {
        request.outcome = Outcome::Refused;
        return {kErrorNotSupported};
    }
    if (request.kind == RequestKind::Read) {
        m_selectorExpected = request.code == kSceneCode;
        return m_memory.answer(request.code);
    }
    if (!m_memory.take(request.code, request.value)) {
        ++m_protocolFaults.badValues;
        request.outcome = Outcome::Adjusted;
    }
    return {};
}

bool SimulatedMonitor::matchesAnnouncement(const Request &request, const Announcement &announcement)
{
    if (announcement.thread != std::this_thread::get_id())
        ++m_protocolFaults.interleaved;
    const bool matches =
        announcement.kind == request.kind && (request.kind == RequestKind::Read || announcement.value == request.value);
    if (!matches)
        ++m_protocolFaults.mismatched;
    return matches;
}

/// Four bytes a reply: maximum high and low, current high and low.
Reply SimulatedMonitor::answerChunk() const
{
    const SceneBlock &block = m_memory.block(m_stream->mode);
    const auto *bytes = block.data() + m_stream->chunk * kChunkSize;
    const auto word = [bytes](int i) { return static_cast<std::uint32_t>(bytes[i] << 8 | bytes[i + 1]); };
    return {0, word(2), word(0)};
}

void SimulatedMonitor::forgetConversation()
{
    m_announcement.reset();
    m_stream.reset();
    m_selectorExpected = false;
}

std::uint16_t SimulatedMonitor::value(std::uint8_t code) const
{
    const std::lock_guard lock(m_mutex);
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
    forgetConversation();
}

std::vector<Request> SimulatedMonitor::history() const
{
    const std::lock_guard lock(m_mutex);
    return {m_history.begin(), m_history.end()};
}

ProtocolFaults SimulatedMonitor::protocolFaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_protocolFaults;
}

int SimulatedMonitor::addListener(Listener listener)
{
    const std::lock_guard lock(m_listenerMutex);
    m_listeners.emplace_back(m_nextListener, std::move(listener));
    return m_nextListener++;
}

void SimulatedMonitor::removeListener(int id)
{
    const std::lock_guard lock(m_listenerMutex);
    std::erase_if(m_listeners, [id](const auto &listener) { return listener.first == id; });
}

void SimulatedMonitor::tell(const Request &request)
{
    const std::lock_guard lock(m_listenerMutex);
    const auto listeners = m_listeners; // a listener may take itself away
    for (const auto &[id, listener] : listeners)
        listener(request);
}

} // namespace virtualdesk
