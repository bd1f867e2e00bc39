#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "virtualdesk/request.h"

namespace virtualdesk {

/// How often a fault strikes: a positive count, 0 for never, or kForEver.
inline constexpr int kForEver = -1;

/// The faults that wait for the next requests of one monitor. Not thread-safe: the monitor guards it.
class Faults
{
public:
    /// Matches any request but those on the vendor code 0x99, whose answers carry nothing.
    static constexpr int kAnyCommand = -1;

    void refuse(std::uint8_t code, int times);
    void refuseWrites(int times) { m_refuseWrites = times; }
    void loseReplies(int times, int code) { m_lose = {times, code}; }
    void garbleReplies(int times, int code) { m_garble = {times, code}; }
    void dropChunks(int times) { m_dropChunks = times; }
    void goDeaf(int requests) { m_deaf = requests; }
    void clear() { *this = Faults(); }

    /// Which faults wait for a request.
    struct Armed
    {
        bool refuseWrites, dropChunks, loseReplies, deaf;
    };
    Armed armed() const { return {m_refuseWrites != 0, m_dropChunks != 0, m_lose.times != 0, m_deaf != 0}; }

    /// Each asks whether the fault strikes the request, and uses it up by one when it does.
    bool strikeDeaf() { return take(m_deaf); }
    bool strikeRefusal(RequestKind kind, std::uint8_t code);
    bool strikeLoss(std::uint8_t code) { return strikeReply(m_lose, code); }
    bool strikeGarble(std::uint8_t code) { return strikeReply(m_garble, code); }
    bool strikeChunk() { return take(m_dropChunks); }

private:
    struct ReplyFault
    {
        int times = 0;
        int code = kAnyCommand;
    };

    static bool take(int &count);
    static bool strikeReply(ReplyFault &fault, std::uint8_t code);

    std::array<int, 256> m_refusals{};
    int m_refuseWrites = 0;
    ReplyFault m_lose;
    ReplyFault m_garble;
    int m_dropChunks = 0;
    int m_deaf = 0;
};

} // namespace virtualdesk
