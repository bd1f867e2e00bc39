#pragma once

#include <optional>
#include <thread>

#include "virtualdesk/monitormemory.h"
#include "virtualdesk/request.h"

namespace virtualdesk {

/// How a monitor is talked to. It speaks the vendor protocol: every command is a request on 0x99 and then one on the
/// command code, both writes (of the same value) or both reads. A read of 0x22 may be followed by a read whose code is
/// an even scene mode: that opens the 40-byte block of the mode, four bytes a reply, 0xFE for the next four, 0xFF for
/// the last four again, and one more 0xFE closes it. Not thread-safe: the monitor guards it.
class Conversation
{
public:
    /// The memory outlives it.
    explicit Conversation(MonitorMemory &memory) : m_memory(memory) {}

    /// Serves a request.
    Reply converse(Request &request);

    /// Whether the request asks for more of the table that is being read.
    bool continuesStream(const Request &request) const;

    /// The stream moves on although the request was not done.
    void skip(Request &request) { continueStream(request); }

    /// The reply to the last request got lost: whether it was an announcement that arrived, its sender does not know.
    void loseReply();

    void forget();

    /// Requests of two threads overlap.
    void countInterleaved() { ++m_faults.interleaved; }
    ProtocolFaults faults() const { return m_faults; }

private:
    struct Announcement
    {
        RequestKind kind;
        std::uint32_t value;
        std::thread::id thread;
        bool heard; ///< the caller knows that it arrived
    };
    struct Stream
    {
        int mode;
        int chunk; ///< the four bytes sent last; 10 is past the end
    };

    Reply announce(Request &request);
    Reply continueStream(Request &request);
    Reply command(Request &request);
    bool matchesAnnouncement(const Request &request, const Announcement &announcement);
    Reply answerChunk() const;

    MonitorMemory &m_memory;
    std::optional<Announcement> m_announcement;
    std::optional<Stream> m_stream;
    bool m_selectorExpected = false;
    ProtocolFaults m_faults;
};

} // namespace virtualdesk
