#include "virtualdesk/simulatedmonitor.h"

#include <algorithm>
#include <cstring>

#include "virtualdesk/osdfunctions.h"

namespace virtualdesk {

namespace {

constexpr std::uint8_t kVendorCode = 0x99;
constexpr std::uint8_t kNextChunk = 0xFE;
constexpr std::uint8_t kSameChunk = 0xFF;
constexpr int kChunkSize = 4;
constexpr int kChunks = kBlockSize / kChunkSize;
constexpr std::uint32_t kGarble = 0x55; // what a garbled reply has flipped

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

bool isReadOnly(std::uint8_t code)
{
    return code == kCapabilityCode || code == kFirmwareCode || code == kOfficeSizeCode;
}

bool isCustom(int mode)
{
    return mode % 2 == 0 && mode > 0 && mode <= kLastMode;
}

/// Whether a paper's width, or its height, which has bit 15, lies within the office area.
bool isPaperSize(const MonitorModel &model, std::uint32_t value)
{
    constexpr std::uint32_t kHeight = 0x8000;
    return value <= ((value & kHeight) != 0 ? kHeight | model.officeHeight : model.officeWidth);
}

} // namespace

SimulatedMonitor::SimulatedMonitor(const MonitorModel &model, platform::Clock &clock) : m_model(model), m_clock(clock)
{
    resetToFactory();
    m_values[kCapabilityCode] = model.capabilities;
    m_values[kFirmwareCode] = model.firmware;
    m_values[kOfficeSizeCode] = model.officeHeight;
    changeScene(model.scene);
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
    if (m_replay)
        return m_replay->answer(request);
    const bool isRead = request.kind == RequestKind::Read;
    if (!m_plugged) {
        request.outcome = Outcome::Unplugged;
        return {kErrorNoSuchDevice};
    }
    if (m_asleep || m_faults.strikeDeaf()) {
        forgetConversation();
        request.outcome = Outcome::Deaf;
        return {isRead ? kErrorReceiving : kErrorTransmitting};
    }
    if (m_faults.strikeRefusal(request.kind, request.code)) {
        // A refused continuation was heard all the same: the stream moves on, and 0xFF brings what is missing.
        if (isRead && isContinuation(request.code) && m_stream)
            continueStream(request);
        else
            forgetConversation();
        request.outcome = Outcome::Refused;
        return {kErrorNotSupported};
    }

    Reply reply = converse(request);
    if (!isRead || !reply.ok())
        return reply;
    const bool dropped = isContinuation(request.code) && m_stream && m_faults.strikeChunk();
    if (dropped || m_faults.strikeLoss(request.code)) {
        if (m_announcement)
            m_announcement->heard = false;
        request.outcome = Outcome::Lost;
        return {kErrorReceiving};
    }
    if (m_faults.strikeGarble(request.code)) {
        reply.current ^= kGarble;
        reply.maximum ^= kGarble;
        request.outcome = Outcome::Garbled;
    }
    request.value = reply.current;
    request.maximum = reply.maximum;
    return reply;
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
        return answer(request.code);
    }
    take(request);
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

Reply SimulatedMonitor::answer(std::uint8_t code) const
{
    const std::uint16_t maximum = code == kOfficeSizeCode ? m_model.officeWidth
                                  : code == kSceneCode    ? kLastMode
                                  : isReadOnly(code)      ? 0xFFFF
                                                          : osdFunction(code).maximum;
    return {0, m_values[code], maximum};
}

/// Four bytes a reply: maximum high and low, current high and low.
Reply SimulatedMonitor::answerChunk() const
{
    const SceneBlock &block = m_blocks[static_cast<std::size_t>(m_stream->mode)];
    const auto *bytes = block.data() + m_stream->chunk * kChunkSize;
    const auto word = [bytes](int i) { return static_cast<std::uint32_t>(bytes[i] << 8 | bytes[i + 1]); };
    return {0, word(2), word(0)};
}

/// Takes a written value as far as it makes sense: a number is limited, anything else out of range is ignored.
void SimulatedMonitor::take(Request &request)
{
    if (request.code == kOfficeSizeCode && isPaperSize(m_model, request.value))
        return; // which changes nothing that can be read back
    const OsdFunction function = osdFunction(request.code);
    const auto isOption = [&](const OsdOption &option) { return option.value == request.value; };
    const bool known =
        request.code == kSceneCode ? request.value <= kLastMode && offersScene(m_model, static_cast<int>(request.value))
        : function.options.empty() ? true
                                   : std::any_of(function.options.begin(), function.options.end(), isOption);
    const bool isNumber = function.options.empty() && request.code != kSceneCode;
    const bool inRange = !isNumber || request.value <= function.maximum;
    if (!known || !inRange || isReadOnly(request.code)) {
        ++m_protocolFaults.badValues;
        request.outcome = Outcome::Adjusted;
    }
    if (known && !isReadOnly(request.code)) {
        const std::uint32_t limit = isNumber ? function.maximum : 0xFFFF;
        apply(request.code, static_cast<std::uint16_t>(std::min(request.value, limit)));
    }
}

void SimulatedMonitor::apply(std::uint8_t code, std::uint16_t value)
{
    if (code == kSceneCode)
        return changeScene(value);
    if (code == kResetCode)
        return resetToFactory();
    m_values[code] = value;
    const int mode = m_values[kSceneCode];
    const auto codes = blockCodes();
    const auto found = std::find(codes.begin(), codes.end(), code);
    // A factory mode forgets what was changed in it as soon as it is left.
    if (found != codes.end() && isCustom(mode))
        m_blocks[static_cast<std::size_t>(mode)][static_cast<std::size_t>(found - codes.begin())] =
            static_cast<std::uint8_t>(value);
}

void SimulatedMonitor::changeScene(int mode)
{
    m_values[kSceneCode] = static_cast<std::uint16_t>(mode);
    if (mode < kFirstMode || mode > kLastMode)
        return;
    const SceneBlock &block = m_blocks[static_cast<std::size_t>(mode)];
    const auto codes = blockCodes();
    for (std::size_t i = 0; i < codes.size(); ++i)
        m_values[codes[i]] = block[i];
}

void SimulatedMonitor::resetToFactory()
{
    for (const std::uint8_t code : commandCodes()) {
        if (!isReadOnly(code))
            m_values[code] = osdFunction(code).factory;
    }
    for (int mode = kFirstMode; mode <= kLastMode; ++mode)
        m_blocks[static_cast<std::size_t>(mode)] = factoryBlock(mode);
    changeScene(kFirstMode);
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
    return m_values[code];
}

std::uint16_t SimulatedMonitor::maximum(std::uint8_t code) const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<std::uint16_t>(answer(code).maximum);
}

void SimulatedMonitor::setValue(std::uint8_t code, std::uint16_t value)
{
    const std::lock_guard lock(m_mutex);
    apply(code, value);
}

QByteArray SimulatedMonitor::block(int mode) const
{
    if (mode < kFirstMode || mode > kLastMode)
        return {};
    const std::lock_guard lock(m_mutex);
    const SceneBlock &block = m_blocks[static_cast<std::size_t>(mode)];
    return {reinterpret_cast<const char *>(block.data()), kBlockSize};
}

void SimulatedMonitor::setBlock(int mode, const QByteArray &bytes)
{
    if (!isCustom(mode))
        return;
    const std::lock_guard lock(m_mutex);
    const auto size = std::min<std::size_t>(static_cast<std::size_t>(bytes.size()), kBlockSize);
    std::memcpy(m_blocks[static_cast<std::size_t>(mode)].data(), bytes.constData(), size);
    if (m_values[kSceneCode] == mode)
        changeScene(mode);
}

Faults::Armed SimulatedMonitor::armedFaults() const
{
    const std::lock_guard lock(m_mutex);
    return m_faults.armed();
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
