#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include <QDateTime>

#include "platform/monitorconfiguration.h"

/// One request to a monitor and what came of it.
struct LinkRequest
{
    bool isWrite = false;
    std::uint8_t code = 0;
    std::uint32_t value = 0; ///< written
    bool isBlock = false;    ///< part of a table read, whose codes are no commands
    bool isRetry = false;    ///< opens another attempt at what failed
    platform::VcpReply reply = {};
    QDateTime at = {}; ///< when it was made
    int duration = 0;  ///< milliseconds
};

/// What goes wrong between a program and a monitor.
enum class LinkFault {
    Silent,     ///< not even the code that opens every command was answered
    NotTold,    ///< a value was asked for in vain
    NotTaken,   ///< a value was sent in vain
    BlockBroken ///< a part of a table read did not come
};

/// Requests that failed by the same fault until one of their kind succeeded.
struct LinkError
{
    LinkFault fault = LinkFault::Silent;
    std::uint8_t code = 0; ///< of the command; means nothing for silence and blocks
    QDateTime at = {};
    QDateTime until = {}; ///< of the last one
    int count = 1;
    bool recovered = false; ///< one of their kind succeeded afterwards
};

/// How long answers took in a span of kSpan seconds.
struct LatencySpan
{
    qint64 number = -1; ///< of the span, counted from 1970
    int worst = 0;      ///< milliseconds
};

/// What happened on the link to one monitor since the program started. No clock inside and no lock: times come in, and
/// whoever keeps a record guards it. Its size does not grow.
class LinkRecord
{
public:
    static constexpr int kSpan = 5;    ///< seconds
    static constexpr int kSpans = 120; ///< ten minutes
    static constexpr std::size_t kErrors = 10;

    void add(const LinkRequest &request);

    std::uint64_t requests() const { return m_requests; }
    std::uint64_t failures() const { return m_failures; }
    std::uint64_t retries() const { return m_retries; }
    std::uint64_t failedRetries() const { return m_failedRetries; }

    /// Values that the monitor took, not counting what announces them.
    std::uint64_t writes() const { return m_writes; }
    std::uint64_t writesOn(QDate day) const { return day == m_day ? m_writesOfDay : 0; }

    /// Of all answers, in milliseconds; from kLongest on only that it was at least that. Nothing without an answer.
    std::optional<int> medianLatency() const;
    int worstLatency() const { return m_worst; }

    /// The spans of the last ten minutes in which anything was answered, oldest first.
    std::vector<LatencySpan> latencies(const QDateTime &now) const;
    static qint64 spanOf(const QDateTime &time) { return time.toSecsSinceEpoch() / kSpan; }

    /// The last ones, newest first.
    const std::deque<LinkError> &errors() const { return m_errors; }

private:
    static constexpr int kLongest = 2000; // milliseconds

    void addAnswer(const LinkRequest &request);
    void addFailure(const LinkRequest &request);
    void followRetry(const LinkRequest &request);

    std::uint64_t m_requests = 0;
    std::uint64_t m_failures = 0;
    std::uint64_t m_answers = 0;
    std::uint64_t m_retries = 0;
    std::uint64_t m_failedRetries = 0;
    std::uint64_t m_writes = 0;
    std::uint64_t m_writesOfDay = 0;
    QDate m_day;
    bool m_isRetrying = false; ///< nothing has failed in the attempt that repeats
    bool m_isSilent = false;   ///< nothing was answered since the opening code failed
    int m_worst = 0;
    std::array<std::uint32_t, kLongest + 1> m_durations = {}; ///< how many answers took so long
    std::array<LatencySpan, kSpans> m_spans = {};
    std::deque<LinkError> m_errors;
};
