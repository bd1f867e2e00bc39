#include "virtualdesk/conversation.h"

#include <algorithm>

#include "virtualdesk/osdfunctions.h"

namespace virtualdesk {

namespace {

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

Reply Conversation::converse(Request &request)
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

bool Conversation::continuesStream(const Request &request) const
{
    return request.kind == RequestKind::Read && isContinuation(request.code) && m_stream;
}

Reply Conversation::announce(Request &request)
{
    if (m_announcement && m_announcement->heard)
        ++m_faults.brokenPairs;
    if (m_stream)
        ++m_faults.openStreams;
    forget();
    m_announcement = Announcement{request.kind, request.value, std::this_thread::get_id(), true};
    return {};
}

Reply Conversation::continueStream(Request &request)
{
    if (!m_stream) {
        ++m_faults.stray;
        forget();
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

Reply Conversation::command(Request &request)
{
    const std::optional<Announcement> announcement = m_announcement;
    if (m_stream)
        ++m_faults.openStreams;
    forget();
    if (!announcement)
        ++m_faults.unannounced;
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
        ++m_faults.badValues;
        request.outcome = Outcome::Adjusted;
    }
    return {};
}

bool Conversation::matchesAnnouncement(const Request &request, const Announcement &announcement)
{
    if (announcement.thread != std::this_thread::get_id())
        ++m_faults.interleaved;
    const bool matches =
        announcement.kind == request.kind && (request.kind == RequestKind::Read || announcement.value == request.value);
    if (!matches)
        ++m_faults.mismatched;
    return matches;
}

/// Four bytes a reply: maximum high and low, current high and low.
Reply Conversation::answerChunk() const
{
    const SceneBlock &block = m_memory.block(m_stream->mode);
    const auto *bytes = block.data() + m_stream->chunk * kChunkSize;
    const auto word = [bytes](int i) { return static_cast<std::uint32_t>(bytes[i] << 8 | bytes[i + 1]); };
    return {0, word(2), word(0)};
}

void Conversation::loseReply()
{
    if (m_announcement)
        m_announcement->heard = false;
}

void Conversation::forget()
{
    m_announcement.reset();
    m_stream.reset();
    m_selectorExpected = false;
}

} // namespace virtualdesk
