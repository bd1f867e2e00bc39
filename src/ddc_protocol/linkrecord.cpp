#include "ddc_protocol/linkrecord.h"

#include <algorithm>

#include "ddc_protocol/commandtable.h"

namespace {

LinkFault faultOf(const LinkRequest &request)
{
    if (request.code == kVendorCode)
        return LinkFault::Silent;
    if (request.isBlock)
        return LinkFault::BlockBroken;
    return request.isWrite ? LinkFault::NotTaken : LinkFault::NotTold;
}

bool isSameKind(const LinkError &error, LinkFault fault, std::uint8_t code)
{
    const bool hasCode = fault == LinkFault::NotTold || fault == LinkFault::NotTaken;
    return error.fault == fault && (!hasCode || error.code == code);
}

} // namespace

void LinkRecord::add(const LinkRequest &request)
{
    ++m_requests;
    if (request.reply.answered)
        addAnswer(request);
    else
        addFailure(request);
    followRetry(request);
}

void LinkRecord::addAnswer(const LinkRequest &request)
{
    ++m_answers;
    m_isSilent = false;
    m_worst = std::max(m_worst, request.duration);
    ++m_durations[static_cast<std::size_t>(std::clamp(request.duration, 0, kLongest))];
    const qint64 number = spanOf(request.at);
    LatencySpan &span = m_spans[static_cast<std::size_t>(number % kSpans)];
    span = {number, span.number == number ? std::max(span.worst, request.duration) : request.duration};

    // A block's first command is answered by monitors that then break off, so it proves nothing.
    const LinkFault mended = faultOf(request);
    const bool proves = mended != LinkFault::BlockBroken || request.code != static_cast<int>(Command::SceneMode);
    for (LinkError &error : m_errors) {
        const bool isMended = proves && isSameKind(error, mended, request.code);
        error.recovered = error.recovered || error.fault == LinkFault::Silent || isMended;
    }

    if (!request.isWrite || request.code == kVendorCode)
        return;
    ++m_writes;
    if (m_day != request.at.date()) {
        m_day = request.at.date();
        m_writesOfDay = 0;
    }
    ++m_writesOfDay;
}

void LinkRecord::addFailure(const LinkRequest &request)
{
    ++m_failures;
    m_isSilent = m_isSilent || request.code == kVendorCode;
    const LinkFault fault = m_isSilent ? LinkFault::Silent : faultOf(request);
    const auto known = std::find_if(m_errors.begin(), m_errors.end(), [&](const LinkError &error) {
        return !error.recovered && isSameKind(error, fault, request.code);
    });
    LinkError error{fault, request.code, request.at, request.at};
    if (known != m_errors.end()) {
        error.at = known->at;
        error.count = known->count + 1;
        m_errors.erase(known);
    }
    m_errors.push_front(error);
    if (m_errors.size() > kErrors)
        m_errors.pop_back();
}

/// A failed announcement is no failed attempt to read: the monitor may tell the value all the same.
void LinkRecord::followRetry(const LinkRequest &request)
{
    if (request.isRetry) {
        ++m_retries;
        m_isRetrying = true;
    } else if (request.code == kVendorCode) {
        m_isRetrying = false;
    }
    if (!m_isRetrying || request.reply.answered || (request.code == kVendorCode && !request.isWrite))
        return;
    ++m_failedRetries;
    m_isRetrying = false;
}

std::optional<int> LinkRecord::medianLatency() const
{
    if (m_answers == 0)
        return {};
    std::uint64_t below = 0;
    std::size_t duration = 0;
    while (below + m_durations[duration] <= (m_answers - 1) / 2)
        below += m_durations[duration++];
    return static_cast<int>(duration);
}

std::vector<LatencySpan> LinkRecord::latencies(const QDateTime &now) const
{
    const qint64 last = spanOf(now);
    std::vector<LatencySpan> spans;
    for (qint64 number = last - kSpans + 1; number <= last; ++number) {
        const LatencySpan &span = m_spans[static_cast<std::size_t>(number % kSpans)];
        if (span.number == number)
            spans.push_back(span);
    }
    return spans;
}
