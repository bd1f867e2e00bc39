#include "ddc_protocol/vcprequest.h"

#include <algorithm>

#include <QDebug>

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkrecorder.h"
#include "ddc_protocol/linkrecords.h"
#include "ddc_protocol/linkstatus.h"
#include "platform/desk.h"
#include "platform/ending.h"

namespace {

std::recursive_mutex s_transport;

/// Every request to a monitor is made here and nowhere else, so that what is noted is what was on the wire. Under the
/// lock; without a monitor nothing is on it.
void makeRequest(std::optional<platform::PhysicalMonitorHandle> monitor, LinkRequest &request)
{
    if (monitor) {
        platform::MonitorConfiguration &monitors = platform::desk().monitors();
        platform::Clock &clock = platform::desk().clock();
        request.at = clock.now();
        if (request.isWrite)
            request.reply.answered = monitors.setFeature(*monitor, request.code, request.value);
        else
            request.reply = monitors.getFeature(*monitor, request.code);
        // Somebody may set the clock back meanwhile.
        request.duration = static_cast<int>(std::max<qint64>(request.at.msecsTo(clock.now()), 0));
        const std::size_t index = currentMonitorIndex;
        const MonitorIdentity identity = index < monitorList.size() ? monitorList[index].identity : MonitorIdentity();
        linkRecords.note(identity, request);
        linkRecorder.note(identity, request);
    }
    noteRequest(request.code, request.reply.answered);
}

platform::VcpReply read(std::optional<platform::PhysicalMonitorHandle> monitor, LinkRequest request)
{
    if (!platform::programEnds()) // else nobody uses the answer any more, and whoever asks is waited for
        makeRequest(monitor, request);
    return request.reply;
}

} // namespace

std::unique_lock<std::recursive_mutex> lockTransport()
{
    return std::unique_lock(s_transport);
}

/// The first search takes any stored index, so it may lie beyond the list; such a request must fail like a monitor that
/// does not answer.
std::optional<platform::PhysicalMonitorHandle> selectedMonitor()
{
    const std::size_t index = currentMonitorIndex;
    if (index < monitorList.size())
        return monitorList[index].target();
    qDebug().nospace() << "Monitor index " << index << " is beyond the " << monitorList.size() << " found";
    return std::nullopt;
}

platform::VcpReply requestBlockPart(std::optional<platform::PhysicalMonitorHandle> monitor, std::uint8_t code,
                                    Attempt attempt)
{
    return read(monitor, {.code = code, .isBlock = true, .isRetry = attempt == Attempt::Again});
}

platform::VcpReply readVcp(std::uint8_t code, Attempt attempt)
{
    return read(selectedMonitor(), {.code = code, .isRetry = attempt == Attempt::Again});
}

std::uint32_t GetVcpValue(std::uint8_t code, Attempt attempt)
{
    const auto lock = lockTransport();
    if (monitorList.empty())
        return 0;
    const platform::VcpReply reply = readVcp(code, attempt);
    return reply.answered ? reply.current : kNoAnswer;
}

bool SetVcpValue(std::uint8_t code, std::uint32_t value, Attempt attempt)
{
    const auto lock = lockTransport();
    if (monitorList.empty())
        return false;
    LinkRequest request{.isWrite = true, .code = code, .value = value, .isRetry = attempt == Attempt::Again};
    makeRequest(selectedMonitor(), request);
    return request.reply.answered;
}
